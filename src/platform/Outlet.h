#pragma once

namespace qbsp::platform {

/// The object that stands in for one that is not there: its operations do nothing and return false, 0 or
/// nothing.
template <class T>
[[nodiscard]] T& nullObject();

/// A reference to an object that somebody else owns and that may not be there. A message to one that is not
/// there goes to its null object.
template <class T>
class Outlet {
public:
    Outlet() = default;

    explicit Outlet(T* target) : target_(target) {}

    /// Null when nothing is connected.
    [[nodiscard]] T* get() const { return target_; }

    [[nodiscard]] bool isConnected() const { return target_ != nullptr; }

    T& operator*() const { return isConnected() ? *target_ : nullObject<T>(); }

    T* operator->() const { return &**this; }

private:
    T* target_ = nullptr;
};

} // namespace qbsp::platform

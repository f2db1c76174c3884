#pragma once

#include <concepts>
#include <memory>
#include <utility>

namespace qbsp::platform {

/// A T in memory of its own, which makes small what holds it. It is copied and compared by the T; once moved
/// from, it has none, and may only be assigned to or destroyed.
template <class T>
class Box {
public:
    template <std::convertible_to<T> U>
    Box(U held) : held_(std::make_unique<T>(std::move(held))) {}

    Box(const Box& other) : held_(std::make_unique<T>(*other)) {}

    Box(Box&&) noexcept = default;

    Box& operator=(Box other) noexcept {
        held_.swap(other.held_);
        return *this;
    }

    ~Box() = default;

    [[nodiscard]] const T& operator*() const { return *held_; }

    friend bool operator==(const Box& first, const Box& second) { return *first == *second; }

private:
    std::unique_ptr<T> held_;
};

} // namespace qbsp::platform

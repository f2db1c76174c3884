#pragma once

#import <Foundation/Foundation.h>

#include <utility>

namespace qbsp::appkit {

/// Owns one reference to an Objective-C object. Object is the pointer type, such as NSString*.
template <class Object>
class Retained {
public:
    Retained() = default;

    /// Retains the object.
    explicit Retained(Object object) : object_(static_cast<Object>([static_cast<id>(object) retain])) {}

    Retained(const Retained& other) : Retained(other.object_) {}

    Retained(Retained&& other) noexcept : object_(std::exchange(other.object_, nil)) {}

    ~Retained() { [static_cast<id>(object_) release]; }

    Retained& operator=(Retained other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    /// Takes over the reference that alloc, new or copy returned.
    [[nodiscard]] static Retained adopt(Object object) {
        Retained result;
        result.object_ = object;
        return result;
    }

    /// Nil when there is no object.
    [[nodiscard]] Object get() const { return object_; }

private:
    Object object_ = nil;
};

} // namespace qbsp::appkit

#pragma once

#include <unistd.h>
#include <utility>

namespace processes {

/// Owns a file descriptor, and closes it on destruction.
class Descriptor {
public:
    Descriptor() = default;

    /// Takes ownership of what a system call returned, which is negative when the call failed.
    explicit Descriptor(int number) : number_(number) {}

    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, none)) {}

    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    ~Descriptor() {
        // Never a second time: the number may be another's by then, also when a signal interrupted the call.
        if (isOpen())
            close(number_);
    }

    [[nodiscard]] bool isOpen() const { return number_ >= 0; }

    /// Negative when it is not open.
    [[nodiscard]] int number() const { return number_; }

private:
    static constexpr int none = -1;

    int number_ = none;
};

} // namespace processes

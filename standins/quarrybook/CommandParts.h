#pragma once

#import "Commands.h"

#include <string>
#include <utility>

// What the commands of several kinds have in common.

namespace quarrybook {

/// The time that a window takes to come or to go.
inline constexpr double timeForWindows = 0.1;

[[nodiscard]] inline NSString* string(const std::string& text) {
    return [NSString stringWithUTF8String:text.c_str()];
}

/// The outcome of a command that has something to tell.
[[nodiscard]] inline Outcome answer(std::string line) {
    return {.answer = {"= " + std::move(line)}, .pause = 0, .condition = {}};
}

/// The outcome of a command that takes that many seconds.
[[nodiscard]] inline Outcome after(double pause) {
    return {.answer = {}, .pause = pause, .condition = {}};
}

} // namespace quarrybook

#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quarrybook {

/// The time in seconds that a window takes to come or to go.
inline constexpr double timeForWindows = 0.1;

/// What a command came to.
struct Outcome {
    std::vector<std::string> lines;  ///< to print
    double pause = 0;                ///< seconds to let pass before the next command
    std::function<bool()> condition; ///< what must come true before the next command; empty: nothing
};

/// The outcome of a command with an answer, which is JSON.
[[nodiscard]] inline Outcome answer(const std::string& json) {
    return {.lines = {"= " + json}, .pause = 0, .condition = {}};
}

/// The outcome of a command that takes that many seconds.
[[nodiscard]] inline Outcome after(double pause) {
    return {.lines = {}, .pause = pause, .condition = {}};
}

} // namespace quarrybook

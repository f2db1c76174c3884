#pragma once

#include <functional>
#include <string>
#include <vector>

namespace qbsp::recorder {

/// Lets the application handle its events until the condition holds. False when it does not within ten
/// seconds.
[[nodiscard]] bool waitUntil(const std::function<bool()>& condition);

/// Runs a program to its end while the application handles events. False when it takes longer than ten
/// seconds.
[[nodiscard]] bool run(const std::vector<std::string>& command);

} // namespace qbsp::recorder

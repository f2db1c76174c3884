#pragma once

#include <functional>
#include <string>
#include <vector>

namespace qbsp::recorder {

/// Lets the application handle its events until the condition holds. False when that takes too long.
[[nodiscard]] bool waitUntil(const std::function<bool()>& condition);

/// Runs a program to its end while the application goes on handling events. False when that takes too long.
[[nodiscard]] bool run(const std::vector<std::string>& command);

} // namespace qbsp::recorder

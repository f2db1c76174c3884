#pragma once

#include <functional>

namespace qbsp::contracts {

/// Lets the main run loop run until the condition holds. False when it does not within ten seconds.
[[nodiscard]] bool eventually(const std::function<bool()>& condition);

} // namespace qbsp::contracts

#pragma once

#include <gtest/gtest.h>

#include <functional>

namespace qbsp::contracts {

/// Lets the main run loop run until the condition holds. Failure when it does not within ten seconds.
[[nodiscard]] testing::AssertionResult eventually(const std::function<bool()>& condition);

} // namespace qbsp::contracts

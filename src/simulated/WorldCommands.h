#pragma once

#include "simulated/Arguments.h"
#include "simulated/World.h"

#include <functional>
#include <optional>
#include <string>

namespace qbsp::simulated {

/// What a line of a scenario does once it was read whole.
using WorldChange = std::function<void(World& world)>;

/// Reads the arguments of the world command of that name; none when there is no such command. Throws
/// ScenarioError for arguments that are malformed.
[[nodiscard]] std::optional<WorldChange> readWorldCommand(const std::string& command, Arguments& arguments);

} // namespace qbsp::simulated

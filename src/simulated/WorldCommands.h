#pragma once

#include "scenario/Words.h"
#include "simulated/World.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace qbsp::simulated {

/// What a line of a scenario does once it was read whole.
using WorldChange = std::function<void(World& world)>;

/// Reads the arguments of the world command of that name; none when there is no such command. Throws
/// scenario::ScenarioError for arguments that are malformed.
[[nodiscard]] std::optional<WorldChange> readWorldCommand(std::string_view name, scenario::Words& arguments);

/// How each world command is written, a line each.
[[nodiscard]] std::string worldCommandList();

} // namespace qbsp::simulated

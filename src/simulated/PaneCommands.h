#pragma once

#include "simulated/Arguments.h"
#include "simulated/PaneSession.h"

#include <functional>
#include <optional>
#include <string>

namespace qbsp::simulated {

/// What a pane command does once it was read whole; its answer as JSON where it has one.
using PaneAction = std::function<std::optional<std::string>()>;

/// Reads the arguments of the pane command of that name; none when there is no such command. Throws
/// ScenarioError for arguments that are malformed and for a command out of place.
[[nodiscard]] std::optional<PaneAction> readPaneCommand(const std::string& command, Arguments& arguments,
                                                        PaneSession& session);

} // namespace qbsp::simulated

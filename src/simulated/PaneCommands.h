#pragma once

#include "scenario/Words.h"
#include "simulated/PaneSession.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace qbsp::simulated {

/// What a pane command does once it was read whole; its answer as JSON where it has one.
using PaneAction = std::function<std::optional<std::string>()>;

/// Reads the arguments of the pane command of that name; none when there is no such command. Throws
/// scenario::ScenarioError for arguments that are malformed and for a command out of place.
[[nodiscard]] std::optional<PaneAction> readPaneCommand(std::string_view name, scenario::Words& arguments,
                                                        PaneSession& session);

/// How each pane command is written, a line each.
[[nodiscard]] std::string paneCommandList();

} // namespace qbsp::simulated

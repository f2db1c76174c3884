#pragma once

#import "Command.h"

#include <string>
#include <string_view>

namespace quarrybook {

/// A command that was read and is still to be run.
struct ReadCommand {
    Echo echo = Echo::shown;
    Action action;
};

/// Reads a line, which must have no leading or trailing spaces. Throws qbsp::scenario::ScenarioError when it
/// is malformed, before anything is done.
[[nodiscard]] ReadCommand readCommand(std::string_view line, const Scene& scene);

/// The syntax of each command, one per line.
[[nodiscard]] std::string commandList();

} // namespace quarrybook

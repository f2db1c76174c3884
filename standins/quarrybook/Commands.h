#pragma once

#import "Command.h"

#include <string>
#include <string_view>

namespace quarrybook {

/// A command that was read whole, and is yet to be done.
struct ReadCommand {
    Echo echo = Echo::shown;
    Action action;
};

/// Reads a line without outer spaces. Throws qbsp::scenario::ScenarioError when it is wrong; nothing was done
/// then.
[[nodiscard]] ReadCommand readCommand(std::string_view line, const Scene& scene);

/// How each command is written, a line each.
[[nodiscard]] std::string commandList();

} // namespace quarrybook

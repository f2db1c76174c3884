#pragma once

#import "Command.h"

#include <span>

namespace quarrybook {

/// The commands for the window, for the panels in front of it, and for the scenario's own flow.
[[nodiscard]] std::span<const Command> windowCommands();

} // namespace quarrybook

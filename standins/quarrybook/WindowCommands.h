#pragma once

#import "Command.h"

#include <span>

namespace quarrybook {

/// The commands for the window, for the panels that stand before it, and for the scenario's own course.
[[nodiscard]] std::span<const Command> windowCommands();

} // namespace quarrybook

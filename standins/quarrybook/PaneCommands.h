#pragma once

#import "Command.h"

#include <span>

namespace quarrybook {

/// The commands that show and leave the pane, operate its controls, and print what they show.
[[nodiscard]] std::span<const Command> paneCommands();

} // namespace quarrybook

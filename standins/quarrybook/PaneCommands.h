#pragma once

#import "Command.h"

#include <span>

namespace quarrybook {

/// The commands that show and leave the pane, work its controls, and ask what they show.
[[nodiscard]] std::span<const Command> paneCommands();

} // namespace quarrybook

#pragma once

#import <AppKit/AppKit.h>
#include <cstdint>
#include <functional>

namespace qbsp::appkit {

/// Shows the panel as a sheet of the window, or on its own for nil, and calls the handler once with the
/// result: before returning where the system runs the panel modally, otherwise later.
void showSheet(NSOpenPanel* panel, NSWindow* window, std::function<void(std::int64_t)> handler);

} // namespace qbsp::appkit

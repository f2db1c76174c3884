#pragma once

#import <AppKit/AppKit.h>
#include <cstdint>
#include <functional>

namespace qbsp::appkit {

/// Shows the panel on the window, or alone for nil, and calls the handler once with the result: before this
/// returns where the system's panel is modal, later where it is a sheet.
void showSheet(NSOpenPanel* panel, NSWindow* window, std::function<void(std::int64_t)> handler);

} // namespace qbsp::appkit

#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>

namespace quarrybook {

/// Presses and releases the mouse button at that point of the view, as window events.
void click(NSView* view, NSPoint point);

/// Presses and releases a key of the Mac's virtual key codes with the Mac's modifier flags, as events of the
/// window. False for a key that no keyboard here has.
[[nodiscard]] bool pressKey(NSWindow* window, std::int64_t macKeyCode, std::uint64_t flags);

/// Clicks the button, also one in a modal window, whose loop is woken to notice it.
void pressButton(NSButton* button);

} // namespace quarrybook

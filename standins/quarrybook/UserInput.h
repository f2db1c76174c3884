#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>

namespace quarrybook {

/// Presses and releases the mouse button at that point of the view, as window events.
void click(NSView* view, NSPoint point);

/// Presses and releases the key with that virtual key code and those modifier flags of the Mac, as events of
/// the window. Returns false for a key that no keyboard here has.
[[nodiscard]] bool pressKey(NSWindow* window, std::int64_t macKeyCode, std::uint64_t flags);

/// Clicks the button. Wakes the loop of a modal window, if there is one, so that it notices.
void pressButton(NSButton* button);

} // namespace quarrybook

#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

// Some controls draw less than their frame. Edges line up when what is seen does.

/// What is seen of the control, in its superview's coordinates.
[[nodiscard]] NSRect visiblePart(NSView* control);

/// Sets the control's frame so that this rectangle is what is seen of it.
void setVisiblePart(NSView* control, NSRect rect);

} // namespace qbsp::appkit

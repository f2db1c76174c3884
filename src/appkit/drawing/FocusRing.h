#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

/// The rectangle that a focus ring around that one covers, itself included.
[[nodiscard]] NSRect focusRingRect(NSRect focused);

/// Draws the ring around the rectangle of what has the focus, outside it.
void drawFocusRing(NSRect focused);

} // namespace qbsp::appkit

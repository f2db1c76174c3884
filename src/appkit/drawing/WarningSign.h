#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

/// Draws a triangle with an exclamation mark, as large as the rectangle, into a view. It is told from
/// everything around it by its shape, and stands out on light and dark grounds.
void drawWarningSign(NSRect rect, bool isFlipped);

} // namespace qbsp::appkit

#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

/// Gives the switch a box that is as large as text in the font. The system's own has one size everywhere, and
/// on GNUstep edges that cannot be seen on a white ground.
void setCheckBoxImages(NSButtonCell* cell, NSFont* font);

} // namespace qbsp::appkit

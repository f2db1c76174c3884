#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

/// Makes the cell a check box as large as text in the font, with the image before the title. The system's own
/// image has one size everywhere, and on GNUstep edges that cannot be seen on a white ground.
void makeCheckBox(NSButtonCell* cell, NSFont* font);

/// The same without a title.
void makeBareCheckBox(NSButtonCell* cell, NSFont* font);

} // namespace qbsp::appkit

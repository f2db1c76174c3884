#pragma once

#include "appkit/drawing/Fonts.h"

#import <AppKit/AppKit.h>

/// Shows a name in the middle of its row, in fonts that have its characters, and shortened in its middle when
/// there is no room for it.
@interface QBSPNameCell : NSTextFieldCell {
    qbsp::appkit::FontSubstitution* fonts;
}

/// Not retained: copies of the cell use it too.
- (void)setFonts:(qbsp::appkit::FontSubstitution*)someFonts;

/// YES when the name is shortened in a cell of that frame.
- (BOOL)isShortenedInFrame:(NSRect)frame;

@end

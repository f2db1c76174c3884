#pragma once

#import <AppKit/AppKit.h>

/// A check box without a title in the middle of its cell, of which only the box can be clicked.
@interface QBSPFlagCell : NSButtonCell

/// Where the box lies in a cell of that frame.
- (NSRect)boxRectInFrame:(NSRect)frame;

@end

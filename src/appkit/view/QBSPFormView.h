#pragma once

#import <AppKit/AppKit.h>

/// Holds the pane's controls, draws the ring around the one that has the focus, and scrolls to it. The ring
/// is in one place so that it looks the same around every control.
@interface QBSPFormView : NSView {
    NSView* followed;
    NSRect focused;
}

/// The rectangle of the control that the ring is around; empty when there is none. In this view's
/// coordinates.
- (NSRect)focusedRect;

@end

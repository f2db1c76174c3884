#pragma once

#import <AppKit/AppKit.h>

/// The "Quarrybook" tab at the right edge of the screen.
@interface QBSPTab : NSWindow

- (id)init;

/// Shows the tab without taking the keyboard from another window, or hides it.
- (void)setVisible:(BOOL)visible;

@end

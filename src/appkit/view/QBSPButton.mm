#import "appkit/view/QBSPButton.h"

@implementation QBSPButton

// AppKit on GNUstep draws the new state and the title over the old ones.

- (void)mouseDown:(NSEvent*)event {
    [super mouseDown:event];
    [self setNeedsDisplay:YES];
}

- (void)performClick:(id)sender {
    [super performClick:sender];
    [self setNeedsDisplay:YES];
}

@end

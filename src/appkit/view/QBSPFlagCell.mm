#import "appkit/view/QBSPFlagCell.h"

#include <cmath>

static const CGFloat clickMargin = 2;

@implementation QBSPFlagCell

- (NSRect)boxRectInFrame:(NSRect)frame {
    const NSSize size = [[self image] size];
    return NSMakeRect(std::floor(NSMidX(frame) - size.width / 2), std::floor(NSMidY(frame) - size.height / 2),
                      size.width, size.height);
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)view {
    NSImage* image = [self state] == NSOnState ? [self alternateImage] : [self image];
    [image drawInRect:[self boxRectInFrame:frame]
              fromRect:NSZeroRect
             operation:NSCompositeSourceOver
              fraction:1
        respectFlipped:YES
                 hints:nil];
}

- (BOOL)trackMouse:(NSEvent*)event inRect:(NSRect)frame ofView:(NSView*)view untilMouseUp:(BOOL)untilMouseUp {
    const NSRect box = NSInsetRect([self boxRectInFrame:frame], -clickMargin, -clickMargin);
    const NSPoint point = [view convertPoint:[event locationInWindow] fromView:nil];
    return [view mouse:point inRect:box] && [super trackMouse:event
                                                       inRect:box
                                                       ofView:view
                                                 untilMouseUp:untilMouseUp];
}

@end

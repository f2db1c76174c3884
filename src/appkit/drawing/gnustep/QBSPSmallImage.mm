#import "appkit/drawing/gnustep/QBSPSmallImage.h"

static void drawPixels(NSBitmapImageRep* bitmap, NSRect rect, bool isFlipped) {
    const CGFloat width = NSWidth(rect) / static_cast<CGFloat>([bitmap pixelsWide]);
    const CGFloat height = NSHeight(rect) / static_cast<CGFloat>([bitmap pixelsHigh]);
    for (NSInteger row = 0; row < [bitmap pixelsHigh]; ++row) {
        const CGFloat fromTop = static_cast<CGFloat>(row) * height;
        const CGFloat y = isFlipped ? NSMinY(rect) + fromTop : NSMaxY(rect) - fromTop - height;
        for (NSInteger column = 0; column < [bitmap pixelsWide]; ++column) {
            const CGFloat x = NSMinX(rect) + static_cast<CGFloat>(column) * width;
            [[bitmap colorAtX:column y:row] set];
            NSRectFillUsingOperation(NSMakeRect(x, y, width, height), NSCompositeSourceOver);
        }
    }
}

@implementation QBSPSmallImage

- (void)drawInRect:(NSRect)rect
          fromRect:(NSRect)source
         operation:(NSCompositingOperation)operation
          fraction:(CGFloat)fraction
    respectFlipped:(BOOL)respectsFlipped
             hints:(NSDictionary*)hints {
    NSImageRep* best = [self bestRepresentationForDevice:nil];
    const bool isOrdinary = operation == NSCompositeSourceOver && fraction == 1 && respectsFlipped;
    if (isOrdinary && NSIsEmptyRect(source) && [best isKindOfClass:[NSBitmapImageRep class]])
        drawPixels(static_cast<NSBitmapImageRep*>(best), rect, [[NSView focusView] isFlipped]);
    else
        [super drawInRect:rect
                  fromRect:source
                 operation:operation
                  fraction:fraction
            respectFlipped:respectsFlipped
                     hints:hints];
}

@end

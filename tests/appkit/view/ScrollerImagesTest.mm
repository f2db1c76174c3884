#include "PaneWindow.h"

@interface ImageOnWhite : NSView {
@public
    NSImage* image;
    BOOL flipped;
}
@end

@implementation ImageOnWhite

- (BOOL)isFlipped {
    return flipped;
}

- (void)drawRect:(NSRect)rect {
    [[NSColor whiteColor] set];
    NSRectFill([self bounds]);
    [image drawInRect:NSMakeRect(3, 5, [image size].width, [image size].height)
              fromRect:NSZeroRect
             operation:NSCompositeSourceOver
              fraction:1
        respectFlipped:YES
                 hints:nil];
}

@end

namespace qbsp::appkit {

namespace {

class ScrollerImages : public PaneWindow {
protected:
    NSData* drawn(NSImage* image, BOOL flipped) {
        ImageOnWhite* drawing = [[[ImageOnWhite alloc] initWithFrame:NSMakeRect(0, 0, 20, 20)] autorelease];
        drawing->image = image;
        drawing->flipped = flipped;
        [[window contentView] addSubview:drawing];
        NSData* pixels = shown(drawing);
        [drawing removeFromSuperview];
        return pixels;
    }
};

NSImage* drawnByGNUstep(NSString* name) {
    NSString* file = [NSBundle pathForLibraryResource:name ofType:@"tiff" inDirectory:@"Images"];
    return [[[NSImage alloc] initWithContentsOfFile:file] autorelease];
}

TEST_F(ScrollerImages, AreDrawnAsGNUstepDrawsThem) {
    for (NSString* name : {@"common_ArrowUp", @"common_ArrowUpH", @"common_ArrowDown", @"common_ArrowDownH",
                           @"common_ArrowLeft", @"common_ArrowLeftH", @"common_ArrowRight",
                           @"common_ArrowRightH", @"common_Dimple", @"common_DimpleHoriz"}) {
        SCOPED_TRACE([name UTF8String]);
        NSImage* image = [NSImage imageNamed:name];
        EXPECT_TRUE([image isKindOfClass:NSClassFromString(@"QBSPSmallImage")]);
        for (const BOOL flipped : {NO, YES}) {
            EXPECT_TRUE([drawn(image, flipped) isEqual:drawn(drawnByGNUstep(name), flipped)]);
            EXPECT_FALSE([drawn(image, flipped) isEqual:drawn(nil, flipped)]);
        }
    }
}

} // namespace

} // namespace qbsp::appkit

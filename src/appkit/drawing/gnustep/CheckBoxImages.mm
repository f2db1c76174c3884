#import "appkit/drawing/CheckBoxImages.h"

#include <cmath>

static void drawTick(NSRect box, bool isFlipped) {
    const CGFloat size = NSHeight(box);
    const auto atPercent = [&](CGFloat x, CGFloat y) {
        const CGFloat up = size * y / 100;
        return NSMakePoint(NSMinX(box) + size * x / 100, isFlipped ? NSMaxY(box) - up : NSMinY(box) + up);
    };
    NSBezierPath* tick = [NSBezierPath bezierPath];
    [tick moveToPoint:atPercent(24, 52)];
    [tick lineToPoint:atPercent(43, 28)];
    [tick lineToPoint:atPercent(78, 76)];
    [tick setLineWidth:std::ceil(size / 8)];
    [[NSColor textColor] set];
    [tick stroke];
}

/// A box as high as the image, at its left. It is drawn anew each time: what GNUstep keeps of an image is a
/// window of its own, which takes longer to make than many boxes take to draw.
@interface QBSPBoxImage : NSImage {
    BOOL isTicked;
}

- (id)initWithSize:(NSSize)size ticked:(BOOL)ticked;

@end

@implementation QBSPBoxImage

- (id)initWithSize:(NSSize)size ticked:(BOOL)ticked {
    if ((self = [super initWithSize:size]) != nil)
        isTicked = ticked;
    return self;
}

- (void)drawInRect:(NSRect)rect
          fromRect:(NSRect)source
         operation:(NSCompositingOperation)operation
          fraction:(CGFloat)fraction
    respectFlipped:(BOOL)respectsFlipped
             hints:(NSDictionary*)hints {
    const NSRect box = NSMakeRect(NSMinX(rect), NSMinY(rect), NSHeight(rect), NSHeight(rect));
    [[NSColor textBackgroundColor] set];
    NSRectFill(box);
    [[NSColor textColor] set];
    NSFrameRect(box);
    if (isTicked)
        drawTick(box, [[NSView focusView] isFlipped]);
}

@end

namespace qbsp::appkit {

namespace {

constexpr CGFloat sizeInFont = CGFloat{7} / 6;
constexpr CGFloat gapBeforeTitle = 4;

NSImage* boxImage(CGFloat size, CGFloat gap, BOOL isTicked) {
    return [[[QBSPBoxImage alloc] initWithSize:NSMakeSize(size + gap, size) ticked:isTicked] autorelease];
}

// What a cell becomes as an NSSwitchButton, but for the system's two images: GNUstep looks for their files in
// thousands of places.
void makeSwitch(NSButtonCell* cell, NSFont* font, NSCellImagePosition position, CGFloat gap) {
    const CGFloat size = std::round([font pointSize] * sizeInFont);
    [cell setHighlightsBy:NSContentsCellMask];
    [cell setShowsStateBy:NSContentsCellMask];
    [cell setImageDimsWhenDisabled:NO];
    [cell setAlignment:NSLeftTextAlignment];
    [cell setBordered:NO];
    [cell setBezeled:NO];
    [cell setImagePosition:position];
    [cell setImage:boxImage(size, gap, NO)];
    [cell setAlternateImage:boxImage(size, gap, YES)];
}

} // namespace

void makeCheckBox(NSButtonCell* cell, NSFont* font) {
    makeSwitch(cell, font, NSImageLeft, gapBeforeTitle);
}

void makeBareCheckBox(NSButtonCell* cell, NSFont* font) {
    makeSwitch(cell, font, NSImageOnly, 0);
}

} // namespace qbsp::appkit

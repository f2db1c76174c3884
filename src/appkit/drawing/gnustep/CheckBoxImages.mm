#import "appkit/drawing/CheckBoxImages.h"

#include <cmath>

namespace qbsp::appkit {

namespace {

constexpr CGFloat sizeInFont = CGFloat{7} / 6;
constexpr CGFloat gapBeforeTitle = 4;

void drawTick(CGFloat size) {
    const auto atPercent = [size](CGFloat x, CGFloat y) {
        return NSMakePoint(size * x / 100, size * y / 100);
    };
    NSBezierPath* tick = [NSBezierPath bezierPath];
    [tick moveToPoint:atPercent(24, 52)];
    [tick lineToPoint:atPercent(43, 28)];
    [tick lineToPoint:atPercent(78, 76)];
    [tick setLineWidth:std::ceil(size / 8)];
    [[NSColor textColor] set];
    [tick stroke];
}

NSImage* boxImage(CGFloat size, CGFloat gap, bool isTicked) {
    NSImage* image = [[[NSImage alloc] initWithSize:NSMakeSize(size + gap, size)] autorelease];
    [image lockFocus];
    [[NSColor textBackgroundColor] set];
    NSRectFill(NSMakeRect(0, 0, size, size));
    [[NSColor textColor] set];
    NSFrameRect(NSMakeRect(0, 0, size, size));
    if (isTicked)
        drawTick(size);
    [image unlockFocus];
    return image;
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
    [cell setImage:boxImage(size, gap, false)];
    [cell setAlternateImage:boxImage(size, gap, true)];
}

} // namespace

void makeCheckBox(NSButtonCell* cell, NSFont* font) {
    makeSwitch(cell, font, NSImageLeft, gapBeforeTitle);
}

void makeBareCheckBox(NSButtonCell* cell, NSFont* font) {
    makeSwitch(cell, font, NSImageOnly, 0);
}

} // namespace qbsp::appkit

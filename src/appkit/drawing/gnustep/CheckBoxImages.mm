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

} // namespace

void setCheckBoxImages(NSButtonCell* cell, NSFont* font) {
    const CGFloat size = std::round([font pointSize] * sizeInFont);
    const CGFloat gap = [cell imagePosition] == NSImageOnly ? 0 : gapBeforeTitle;
    [cell setImage:boxImage(size, gap, false)];
    [cell setAlternateImage:boxImage(size, gap, true)];
}

} // namespace qbsp::appkit

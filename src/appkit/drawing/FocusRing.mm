#import "appkit/drawing/FocusRing.h"

namespace qbsp::appkit {

namespace {

constexpr CGFloat distance = 1;
constexpr CGFloat ringWidth = 2;
constexpr CGFloat cornerRadius = 4;

} // namespace

NSRect focusRingRect(NSRect focused) {
    return NSInsetRect(focused, -distance - ringWidth, -distance - ringWidth);
}

void drawFocusRing(NSRect focused) {
    const NSRect middle = NSInsetRect(focused, -distance - ringWidth / 2, -distance - ringWidth / 2);
    NSBezierPath* ring = [NSBezierPath bezierPathWithRoundedRect:middle
                                                         xRadius:cornerRadius
                                                         yRadius:cornerRadius];
    [ring setLineWidth:ringWidth];
    [[NSColor keyboardFocusIndicatorColor] set];
    [ring stroke];
}

} // namespace qbsp::appkit

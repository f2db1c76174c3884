#import "appkit/drawing/FocusRing.h"

namespace qbsp::appkit {

namespace {

constexpr CGFloat distance = 1;
constexpr CGFloat width = 2;
constexpr CGFloat cornerRadius = 4;

} // namespace

NSRect focusRingRect(NSRect focused) {
    return NSInsetRect(focused, -distance - width, -distance - width);
}

void drawFocusRing(NSRect focused) {
    const NSRect middle = NSInsetRect(focused, -distance - width / 2, -distance - width / 2);
    NSBezierPath* ring = [NSBezierPath bezierPathWithRoundedRect:middle
                                                         xRadius:cornerRadius
                                                         yRadius:cornerRadius];
    [ring setLineWidth:width];
    [[NSColor keyboardFocusIndicatorColor] set];
    [ring stroke];
}

} // namespace qbsp::appkit

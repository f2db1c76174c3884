#import "appkit/view/Alignment.h"

namespace qbsp::appkit {

namespace {

/// How far a rounded push button's edge lies within its frame.
constexpr CGFloat pushButtonInset = 3;

CGFloat insetOf(NSView* control) {
    const bool isPushButton =
        [control isKindOfClass:[NSButton class]] && [static_cast<NSButton*>(control) isBordered];
    return isPushButton ? pushButtonInset : 0;
}

} // namespace

NSRect visiblePart(NSView* control) {
    return NSInsetRect([control frame], insetOf(control), insetOf(control));
}

void setVisiblePart(NSView* control, NSRect rect) {
    [control setFrame:NSInsetRect(rect, -insetOf(control), -insetOf(control))];
}

} // namespace qbsp::appkit

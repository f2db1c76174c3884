#import "appkit/view/ControlFlow.h"

#import "appkit/view/TextMeasuring.h"

#include <algorithm>
#include <cmath>

namespace qbsp::appkit {

namespace {

constexpr CGFloat gap = 10;
constexpr CGFloat minimumPushButtonWidth = 100;
constexpr CGFloat pushButtonPadding = 24;
constexpr CGFloat pushButtonHeight = 26;
constexpr CGFloat unlimited = 10000;

NSSize buttonSize(NSButton* button) {
    const NSSize size = [[button cell] cellSize];
    if (![button isBordered])
        return NSMakeSize(std::ceil(size.width) + 4, std::ceil(size.height));
    return NSMakeSize(std::max(minimumPushButtonWidth, std::ceil(size.width) + pushButtonPadding),
                      std::max(pushButtonHeight, std::ceil(size.height)));
}

NSSize contentSize(NSView* control, CGFloat width) {
    if ([control isKindOfClass:[NSTextField class]])
        return sizeOfWrappedText(static_cast<NSTextField*>(control), width);
    if ([control isKindOfClass:[NSButton class]])
        return buttonSize(static_cast<NSButton*>(control));
    return [control frame].size;
}

} // namespace

CGFloat naturalWidth(NSView* control) {
    return contentSize(control, unlimited).width;
}

ControlFlow::ControlFlow(const std::vector<NSView*>& controls, CGFloat width) : width_(width) {
    for (NSView* control : controls)
        if (![control isHidden])
            append(control);
}

void ControlFlow::append(NSView* control) {
    const NSSize size = contentSize(control, width_);
    if (x_ > 0 && x_ + size.width > width_) {
        lineTop_ += lineHeight_ + gap;
        lineHeight_ = 0;
        x_ = 0;
    }
    places_.push_back({control, NSMakeRect(x_, lineTop_, std::min(size.width, width_), size.height)});
    lineHeight_ = std::max(lineHeight_, size.height);
    x_ += size.width + gap;
}

void ControlFlow::place(NSPoint origin) const {
    for (const auto& [control, frame] : places_)
        [control setFrame:NSOffsetRect(frame, origin.x, origin.y)];
}

} // namespace qbsp::appkit

#import "appkit/view/ControlFlow.h"

#include "appkit/drawing/Fonts.h"
#import "appkit/view/Alignment.h"
#import "appkit/view/QBSPListTable.h"
#import "appkit/view/TextMeasuring.h"

#include <algorithm>
#include <cmath>

namespace qbsp::appkit {

namespace {

constexpr CGFloat gap = 10;
constexpr CGFloat minimumPushButtonWidth = 94;
constexpr CGFloat pushButtonPadding = 24;
// Even, like every such number here: heights that differ by an even number have the same middle.
constexpr CGFloat pushButtonHeightPadding = 6;
constexpr CGFloat checkBoxHeightPadding = 4;
constexpr CGFloat unlimited = 10000;

NSSize buttonSize(NSButton* button) {
    const NSSize size = [[button cell] cellSize];
    const CGFloat line = lineHeight([button font]);
    if (![button isBordered])
        return NSMakeSize(std::ceil(size.width) + 4, line + checkBoxHeightPadding);
    return NSMakeSize(std::max(minimumPushButtonWidth, std::ceil(size.width) + pushButtonPadding),
                      line + pushButtonHeightPadding);
}

NSSize listSize(NSScrollView* list) {
    auto* table = static_cast<QBSPListTable*>([list documentView]);
    const NSSize size = NSMakeSize([table minimumWidth], NSHeight([list frame]));
    return [NSScrollView frameSizeForContentSize:size
                           hasHorizontalScroller:NO
                             hasVerticalScroller:YES
                                      borderType:[list borderType]];
}

NSSize contentSize(NSView* control, CGFloat width) {
    if ([control isKindOfClass:[NSTextField class]])
        return sizeOfWrappedText(static_cast<NSTextField*>(control), width);
    if ([control isKindOfClass:[NSButton class]])
        return buttonSize(static_cast<NSButton*>(control));
    if ([control isKindOfClass:[NSScrollView class]])
        return listSize(static_cast<NSScrollView*>(control));
    return [control frame].size;
}

} // namespace

CGFloat naturalWidth(NSView* control) {
    return contentSize(control, unlimited).width;
}

bool takesSpace(NSView* control) {
    if ([control isHidden])
        return false;
    return ![control isKindOfClass:[NSTextField class]] ||
           [[static_cast<NSTextField*>(control) stringValue] length] > 0;
}

ControlFlow::ControlFlow(const std::vector<NSView*>& controls, CGFloat width) : width_(width) {
    for (NSView* control : controls)
        if (takesSpace(control))
            append(control);
    endLine();
}

void ControlFlow::append(NSView* control) {
    const NSSize size = contentSize(control, width_);
    if (x_ > 0 && x_ + size.width > width_) {
        endLine();
        lineTop_ += lineHeight_ + gap;
        lineHeight_ = 0;
        x_ = 0;
    }
    places_.push_back({control, NSMakeRect(x_, lineTop_, std::min(size.width, width_), size.height)});
    lineHeight_ = std::max(lineHeight_, size.height);
    x_ += size.width + gap;
}

void ControlFlow::endLine() {
    for (; lineStart_ < places_.size(); ++lineStart_) {
        NSRect& rect = places_[lineStart_].rect;
        rect.origin.y += std::floor((lineHeight_ - NSHeight(rect)) / 2);
    }
}

CGFloat ControlFlow::firstLineHeight() const {
    CGFloat height = 0;
    for (const Place& place : places_)
        if (place.rect.origin.x == 0 && place.control != places_.front().control)
            break;
        else
            height = std::max(height, NSHeight(place.rect));
    return height;
}

void ControlFlow::place(NSPoint origin) const {
    for (const auto& [control, rect] : places_)
        setVisiblePart(control, NSOffsetRect(rect, origin.x, origin.y));
}

} // namespace qbsp::appkit

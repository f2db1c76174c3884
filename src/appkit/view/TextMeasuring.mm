#import "appkit/view/TextMeasuring.h"

#include "appkit/bridge/Retained.h"
#import "appkit/view/QBSPReasonField.h"

#include <algorithm>
#include <cmath>

namespace qbsp::appkit {

namespace {

// The padding of a borderless cell, left and right together.
constexpr CGFloat cellPadding = 6;
constexpr CGFloat unbounded = 100000;

NSSize measure(NSString* text, NSFont* font, CGFloat width) {
    NSDictionary* attributes = [NSDictionary dictionaryWithObject:font forKey:NSFontAttributeName];
    const auto storage = Retained<NSTextStorage*>::adopt([[NSTextStorage alloc] initWithString:text
                                                                                    attributes:attributes]);
    const auto layout = Retained<NSLayoutManager*>::adopt([[NSLayoutManager alloc] init]);
    const auto container = Retained<NSTextContainer*>::adopt(
        [[NSTextContainer alloc] initWithContainerSize:NSMakeSize(width, unbounded)]);
    [container.get() setLineFragmentPadding:0];
    [layout.get() addTextContainer:container.get()];
    [storage.get() addLayoutManager:layout.get()];
    [layout.get() glyphRangeForTextContainer:container.get()];
    return [layout.get() usedRectForTextContainer:container.get()].size;
}

CGFloat paddingOf(NSTextField* field) {
    if (![field isKindOfClass:[QBSPReasonField class]])
        return cellPadding;
    return cellPadding + [static_cast<QBSPReasonField*>(field) signWidth];
}

} // namespace

// Measured here, because on some systems a cell's own size ignores wrapping.
NSSize sizeOfWrappedText(NSTextField* field, CGFloat width) {
    NSString* text = [[field stringValue] length] == 0 ? @" " : [field stringValue];
    const CGFloat padding = paddingOf(field);
    const NSSize size = measure(text, [field font], width - padding);
    return NSMakeSize(std::ceil(size.width) + padding, std::ceil(size.height) + 2);
}

CGFloat widthOfWidestWord(NSTextField* field) {
    NSArray* words = [[field stringValue] componentsSeparatedByString:@" "];
    CGFloat widest = 0;
    for (NSUInteger index = 0; index < [words count]; ++index)
        widest = std::max(widest, measure([words objectAtIndex:index], [field font], unbounded).width);
    return std::ceil(widest) + cellPadding;
}

} // namespace qbsp::appkit

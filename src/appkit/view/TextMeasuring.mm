#import "appkit/view/TextMeasuring.h"

#include "appkit/Retained.h"

#include <cmath>

namespace qbsp::appkit {

namespace {

// What a cell without a border keeps free at its left and right together.
constexpr CGFloat cellPadding = 6;

NSSize measure(NSString* text, NSFont* font, CGFloat width) {
    NSDictionary* attributes = [NSDictionary dictionaryWithObject:font forKey:NSFontAttributeName];
    const auto storage = Retained<NSTextStorage*>::adopt([[NSTextStorage alloc] initWithString:text
                                                                                    attributes:attributes]);
    const auto layout = Retained<NSLayoutManager*>::adopt([[NSLayoutManager alloc] init]);
    const auto container = Retained<NSTextContainer*>::adopt(
        [[NSTextContainer alloc] initWithContainerSize:NSMakeSize(width, 100000)]);
    [container.get() setLineFragmentPadding:0];
    [layout.get() addTextContainer:container.get()];
    [storage.get() addLayoutManager:layout.get()];
    [layout.get() glyphRangeForTextContainer:container.get()];
    return [layout.get() usedRectForTextContainer:container.get()].size;
}

} // namespace

// A cell's own answer leaves the wrapping out on some systems.
NSSize sizeOfWrappedText(NSTextField* field, CGFloat width) {
    NSString* text = [[field stringValue] length] == 0 ? @" " : [field stringValue];
    const NSSize size = measure(text, [field font], width - cellPadding);
    return NSMakeSize(std::ceil(size.width) + cellPadding, std::ceil(size.height) + 2);
}

} // namespace qbsp::appkit

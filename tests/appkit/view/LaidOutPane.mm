#include "LaidOutPane.h"

#import "appkit/view/Alignment.h"
#include "appkit/view/ControlFlow.h"
#import "appkit/view/TextMeasuring.h"

namespace qbsp::appkit {

NSView* LaidOutPane::form() const {
    return [controls().visibilityButton superview];
}

NSScrollView* LaidOutPane::list() const {
    return [controls().hideAppsTable enclosingScrollView];
}

void LaidOutPane::expectNothingCutOrCovered() const {
    const std::vector<NSView*> parts = shownParts();
    for (std::size_t index = 0; index < parts.size(); ++index) {
        expectWhole(parts[index]);
        for (std::size_t other = 0; other < index; ++other)
            EXPECT_FALSE(NSIntersectsRect(visiblePart(parts[index]), visiblePart(parts[other])))
                << [[parts[index] description] UTF8String];
    }
}

std::vector<NSView*> LaidOutPane::shownParts() const {
    std::vector<NSView*> shown;
    NSArray* const parts = [form() subviews];
    for (NSUInteger index = 0; index < [parts count]; ++index)
        if (takesSpace([parts objectAtIndex:index]))
            shown.push_back([parts objectAtIndex:index]);
    return shown;
}

void LaidOutPane::expectWhole(NSView* part) const {
    const NSRect rect = visiblePart(part);
    EXPECT_TRUE(NSContainsRect([form() bounds], rect)) << [[part description] UTF8String];
    if ([part isKindOfClass:[NSButton class]]) {
        EXPECT_GE(NSWidth(rect), naturalWidth(part)) << [[part description] UTF8String];
    }
    if ([part isKindOfClass:[NSTextField class]]) {
        const NSSize needed = sizeOfWrappedText(static_cast<NSTextField*>(part), NSWidth(rect));
        EXPECT_GE(NSHeight(rect), needed.height) << [[part description] UTF8String];
    }
}

} // namespace qbsp::appkit

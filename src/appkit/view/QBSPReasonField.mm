#import "appkit/view/QBSPReasonField.h"

#include "appkit/drawing/Fonts.h"
#include "appkit/drawing/WarningSign.h"

// A borderless cell starts its text that far from its edge.
static const CGFloat gapBeforeSign = 2;
static const CGFloat gapBehindSign = 4;

@implementation QBSPReasonField

- (void)setLayout:(id<QBSPReasonLayout>)aLayout {
    layout = aLayout;
}

- (CGFloat)signWidth {
    return gapBeforeSign + qbsp::appkit::lineHeight(qbsp::appkit::controlFont()) + gapBehindSign;
}

- (void)setStringValue:(NSString*)text {
    if ([text isEqualToString:[self stringValue]])
        return;
    [self setFont:qbsp::appkit::fontForText(text, qbsp::appkit::controlFont())];
    [super setStringValue:text];
    [layout layOutForm];
    NSAccessibilityPostNotification(self, NSAccessibilityValueChangedNotification);
}

- (void)drawRect:(NSRect)rect {
    if ([[self stringValue] length] == 0)
        return;
    const NSRect bounds = [self bounds];
    const CGFloat size = [self signWidth] - gapBeforeSign - gapBehindSign;
    const CGFloat top = [self isFlipped] ? NSMinY(bounds) : NSMaxY(bounds) - size;
    qbsp::appkit::drawWarningSign(NSMakeRect(NSMinX(bounds) + gapBeforeSign, top, size, size),
                                  [self isFlipped]);
    NSRect text = bounds;
    text.origin.x += [self signWidth];
    text.size.width -= [self signWidth];
    [[self cell] drawWithFrame:text inView:self];
}

#pragma mark - Accessibility

- (BOOL)isAccessibilityElement {
    return [[self stringValue] length] > 0;
}

- (NSString*)accessibilityRole {
    return NSAccessibilityStaticTextRole;
}

- (id)accessibilityValue {
    return [self stringValue];
}

@end

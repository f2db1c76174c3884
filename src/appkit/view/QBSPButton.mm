#import "appkit/view/QBSPButton.h"

#include "appkit/drawing/Fonts.h"

@interface QBSPButton ()
- (BOOL)isSwitch;
- (void)wasPressedIn:(NSInteger)earlier;
@end

@implementation QBSPButton

- (void)mouseDown:(NSEvent*)event {
    const NSInteger earlier = [self state];
    [super mouseDown:event];
    [self wasPressedIn:earlier];
}

- (void)performClick:(id)sender {
    const NSInteger earlier = [self state];
    [super performClick:sender];
    [self wasPressedIn:earlier];
}

- (void)wasPressedIn:(NSInteger)earlier {
    // AppKit on GNUstep draws the new state and the title over the old ones.
    [self setNeedsDisplay:YES];
    if ([self state] != earlier)
        NSAccessibilityPostNotification(self, NSAccessibilityValueChangedNotification);
}

- (void)setTitle:(NSString*)title {
    const BOOL isNew = ![title isEqual:[self title]];
    [self setFont:qbsp::appkit::fontForText(title, qbsp::appkit::controlFont())];
    [super setTitle:title];
    if (isNew)
        NSAccessibilityPostNotification(self, NSAccessibilityTitleChangedNotification);
}

#pragma mark - Accessibility

- (BOOL)isSwitch {
    return ![self isBordered];
}

- (BOOL)isAccessibilityElement {
    return YES;
}

- (NSString*)accessibilityRole {
    return [self isSwitch] ? NSAccessibilityCheckBoxRole : NSAccessibilityButtonRole;
}

- (void)setAccessibilityLabel:(NSString*)label {
    accessibilityLabel = qbsp::appkit::Retained<NSString*>([[label copy] autorelease]);
}

- (NSString*)accessibilityLabel {
    NSString* label = accessibilityLabel.get();
    return [label length] == 0 ? [self title] : [NSString stringWithFormat:@"%@ %@", label, [self title]];
}

- (id)accessibilityValue {
    return [self isSwitch] ? [NSNumber numberWithInteger:[self state]] : nil;
}

- (NSString*)accessibilityHelp {
    return [self toolTip];
}

- (BOOL)accessibilityPerformPress {
    [self performClick:nil];
    return [self isEnabled];
}

@end

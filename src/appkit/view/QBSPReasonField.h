#pragma once

#import <AppKit/AppKit.h>

/// What lays the field out.
@protocol QBSPReasonLayout
- (void)layOutForm;
@end

/// The field for what is wrong with the recorder above it: a text behind a warning sign. The pane is laid out
/// anew when it gets a text or loses it, so that there is room for the reason only while there is one.
@interface QBSPReasonField : NSTextField {
    id<QBSPReasonLayout> layout;
}

/// Not retained.
- (void)setLayout:(id<QBSPReasonLayout>)aLayout;

/// The room that the sign takes to the left of the text.
- (CGFloat)signWidth;

/// What a screen reader says of it. GNUstep's views lack these methods, so they are declared here.
- (NSString*)accessibilityRole;
- (id)accessibilityValue;

@end

#pragma once

#import <AppKit/AppKit.h>

/// What lays the field out.
@protocol QBSPReasonLayout
- (void)layOutForm;
@end

/// The field for the reason why a recorder refuses a key. The pane is laid out anew when it gets a text or
/// loses it, so that there is room for the reason only while there is one.
@interface QBSPReasonField : NSTextField {
    id<QBSPReasonLayout> layout;
}

/// Not retained.
- (void)setLayout:(id<QBSPReasonLayout>)aLayout;

@end

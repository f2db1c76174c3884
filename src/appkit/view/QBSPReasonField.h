#pragma once

#import <AppKit/AppKit.h>

@class QBSPPaneView;

/// The field for the reason why a recorder refuses a key. The pane is laid out anew when it gets a text or
/// loses it, so that there is room for the reason only while there is one.
@interface QBSPReasonField : NSTextField {
    QBSPPaneView* paneView;
}

/// Not retained.
- (void)setPaneView:(QBSPPaneView*)aPaneView;

@end

#pragma once

#import <AppKit/AppKit.h>

/// Binds a check box to "SorterTabIsInvisible" in the host's defaults, inverted: on shows the tab.
@interface QBSPVisibilityBinding : NSObject {
    NSButton* checkBox;
}

/// Becomes the check box's target; both must go together.
- (id)initWithCheckBox:(NSButton*)aCheckBox;

/// Shows what the defaults say now.
- (void)refresh;

@end

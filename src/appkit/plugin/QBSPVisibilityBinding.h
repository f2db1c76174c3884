#pragma once

#import <AppKit/AppKit.h>

/// Binds a check box to "SorterTabIsInvisible" in the host's defaults, inverted: on shows the tab.
@interface QBSPVisibilityBinding : NSObject {
    NSButton* checkBox;
}

/// Retains the check box, and becomes its target.
- (id)initWithCheckBox:(NSButton*)aCheckBox;

/// Shows what the defaults say now.
- (void)refresh;

@end

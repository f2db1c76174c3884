#pragma once

#include "appkit/bridge/Retained.h"

#import <AppKit/AppKit.h>

/// A push button or a check box. What a screen reader says of it stands in the methods that its protocol
/// names; GNUstep's views lack them. Its tool tip is also its help.
@interface QBSPButton : NSButton {
    qbsp::appkit::Retained<NSString*> accessibilityLabel;
}

/// The label that stands beside the button in the form, which is spoken before its title.
- (void)setAccessibilityLabel:(NSString*)label;

- (NSString*)accessibilityRole;
- (NSString*)accessibilityLabel;
- (id)accessibilityValue;
- (NSString*)accessibilityHelp;
- (BOOL)accessibilityPerformPress;

@end

#pragma once

#import <AppKit/AppKit.h>

/// A push button or a check box.
@interface QBSPButton : NSButton
@end

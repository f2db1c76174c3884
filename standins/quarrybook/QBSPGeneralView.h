#pragma once

#import <AppKit/AppKit.h>

/// The page that Quarrybook opens its preferences with: a sentence.
@interface QBSPGeneralView : NSView
@end

#pragma once

#import <AppKit/AppKit.h>

/// The first page of Quarrybook's preferences, which shows one sentence.
@interface QBSPGeneralView : NSView
@end

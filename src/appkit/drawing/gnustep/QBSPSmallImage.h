#pragma once

#import <AppKit/AppKit.h>

/// A bitmap of few pixels, which are drawn one by one: what GNUstep keeps of an image is a window of its own,
/// for which it asks the X server a dozen times and sends it the host's icon.
@interface QBSPSmallImage : NSImage
@end

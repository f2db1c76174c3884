#pragma once

#import <Foundation/Foundation.h>

/// Lets the application terminate when its process is asked to. AppKit's own answer to that signal runs
/// wherever the signal interrupts, and may wait for ever for a lock that the interrupted code holds; this one
/// is left to the run loop.
@interface QBSPQuitRequest : NSObject

/// Keeps requests back while the application comes into being, when AppKit would swallow them. Call it first.
+ (void)hold;

/// From now on answers requests, those that were kept back among them. The application must exist.
+ (void)heed;

@end

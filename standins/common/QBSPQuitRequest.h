#pragma once

#import <Foundation/Foundation.h>

/// Lets the application terminate when its process receives SIGTERM. AppKit's own handler runs wherever the
/// signal interrupts, and may wait forever for a lock that the interrupted code holds; this one leaves the
/// request to the run loop.
@interface QBSPQuitRequest : NSObject

/// Holds requests back while the application is being made, when AppKit would swallow them. Call it first.
+ (void)hold;

/// From now on acts on requests, those that were held back among them. The application must exist.
+ (void)accept;

@end

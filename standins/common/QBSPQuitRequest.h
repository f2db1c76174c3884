#pragma once

#import <Foundation/Foundation.h>

/// Terminates the application when its process receives SIGTERM. AppKit's own handler runs wherever the
/// signal interrupts, and may deadlock on a lock that the interrupted code holds; this one passes the request
/// to the run loop.
@interface QBSPQuitRequest : NSObject

/// Holds requests back while the application object is being created, when AppKit would lose them. Must be
/// called first.
+ (void)hold;

/// Starts acting on requests, including those that were held back. The application object must exist.
+ (void)accept;

@end

#pragma once

#import <Foundation/Foundation.h>

/// Saves what waits from the run loop, and for the last time when the application quits.
@interface QBSPSaver : NSObject {
    NSTimer* timer;
}

/// The one of this process, which is never released.
+ (QBSPSaver*)saver;

/// Saves as soon as the run loop runs.
- (void)saveSoon;

/// Tries again in a few seconds.
- (void)saveLater;

@end

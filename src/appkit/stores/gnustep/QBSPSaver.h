#pragma once

#import <Foundation/Foundation.h>

/// Saves what waits from the run loop, and for the last time when the application quits.
@interface QBSPSaver : NSObject {
    bool (*save)();
    void (*saveAtEnd)();
    NSTimer* timer; ///< fires in the distant future while nothing waits
    BOOL isToSave;
}

/// Calls the first to save, which returns false when something still waits, and the second at the end.
- (id)initWithSave:(bool (*)())aSave atEnd:(void (*)())aSaveAtEnd;

/// Saves as soon as the run loop runs.
- (void)saveSoon;

/// Tries again in a few seconds.
- (void)saveLater;

@end

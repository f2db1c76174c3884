#import "appkit/stores/gnustep/QBSPSaver.h"

#import <AppKit/AppKit.h>

static const NSTimeInterval betweenTries = 5;

@implementation QBSPSaver

- (id)initWithSave:(bool (*)())aSave atEnd:(void (*)())aSaveAtEnd {
    if ((self = [super init]) != nil) {
        save = aSave;
        saveAtEnd = aSaveAtEnd;
        [[NSNotificationCenter defaultCenter] addObserver:self
                                                 selector:@selector(applicationWillTerminate:)
                                                     name:NSApplicationWillTerminateNotification
                                                   object:nil];
    }
    return self;
}

// One timer for all saves: a run loop keeps one that has fired in every mode that it does not run in.
- (NSTimer*)timer {
    if (timer != nil)
        return timer;
    timer = [[NSTimer alloc] initWithFireDate:[NSDate distantFuture]
                                     interval:betweenTries
                                       target:self
                                     selector:@selector(save:)
                                     userInfo:nil
                                      repeats:YES];
    NSRunLoop* loop = [NSRunLoop currentRunLoop];
    [loop addTimer:timer forMode:NSDefaultRunLoopMode];
    [loop addTimer:timer forMode:NSModalPanelRunLoopMode];
    [loop addTimer:timer forMode:NSEventTrackingRunLoopMode];
    return timer;
}

- (void)saveAfter:(NSTimeInterval)delay {
    if (isToSave)
        return;
    isToSave = YES;
    [[self timer] setFireDate:[NSDate dateWithTimeIntervalSinceNow:delay]];
}

- (void)saveSoon {
    [self saveAfter:0];
}

- (void)saveLater {
    [self saveAfter:betweenTries];
}

- (void)save:(NSTimer*)aTimer {
    isToSave = NO;
    [timer setFireDate:[NSDate distantFuture]];
    if (!save())
        [self saveLater];
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    saveAtEnd();
}

@end

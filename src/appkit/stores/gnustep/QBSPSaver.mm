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

- (void)saveAfter:(NSTimeInterval)delay {
    if (timer != nil)
        return;
    timer = [NSTimer timerWithTimeInterval:delay
                                    target:self
                                  selector:@selector(save:)
                                  userInfo:nil
                                   repeats:NO];
    NSRunLoop* loop = [NSRunLoop currentRunLoop];
    [loop addTimer:timer forMode:NSDefaultRunLoopMode];
    [loop addTimer:timer forMode:NSModalPanelRunLoopMode];
    [loop addTimer:timer forMode:NSEventTrackingRunLoopMode];
}

- (void)saveSoon {
    [self saveAfter:0];
}

- (void)saveLater {
    [self saveAfter:betweenTries];
}

- (void)save:(NSTimer*)aTimer {
    timer = nil;
    if (!save())
        [self saveLater];
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    saveAtEnd();
}

@end

#import "appkit/stores/gnustep/QBSPSaver.h"

#include "appkit/stores/gnustep/Saving.h"

#import <AppKit/AppKit.h>

static const NSTimeInterval betweenTries = 5;

@implementation QBSPSaver

+ (QBSPSaver*)saver {
    static QBSPSaver* saver = nil;
    if (saver == nil)
        saver = [[QBSPSaver alloc] init];
    return saver;
}

- (id)init {
    if ((self = [super init]) != nil)
        [[NSNotificationCenter defaultCenter] addObserver:self
                                                 selector:@selector(applicationWillTerminate:)
                                                     name:NSApplicationWillTerminateNotification
                                                   object:nil];
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
    // Nobody waits for this, so that it need not wait for others.
    files::Patience none{files::Patience::Duration(0)};
    if (!qbsp::appkit::storedLists().save(none))
        [self saveLater];
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    qbsp::appkit::saveAtEnd();
}

@end

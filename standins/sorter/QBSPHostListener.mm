#import "QBSPHostListener.h"

static const NSTimeInterval timeBetweenAttempts = 0.5;

static void addObserver(id receiver, SEL message, NSString* notice) {
    [[NSDistributedNotificationCenter defaultCenter]
               addObserver:receiver
                  selector:message
                      name:notice
                    object:nil
        suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
}

@implementation QBSPHostListener

- (id)initWithReceiver:(id<QBSPHostNotices>)aReceiver {
    if ((self = [super init]) != nil) {
        receiver = aReceiver;
        [[NSNotificationCenter defaultCenter] addObserver:self
                                                 selector:@selector(connectionDied:)
                                                     name:NSConnectionDidDieNotification
                                                   object:nil];
    }
    return self;
}

- (void)listen {
    [[NSDistributedNotificationCenter defaultCenter] removeObserver:receiver];
    addObserver(receiver, @selector(hotKeysChanged:), @"QBSSorterShortcutKeysChanged");
    addObserver(receiver, @selector(preferencesUpdated:), @"QBSSorterPreferencesUpdated");
    addObserver(receiver, @selector(hideListUpdated:), @"QBSSorterHideAppUpdated");
}

- (void)listenAgain {
    // Without a daemon, -listen raises before the scheduled retry is cancelled.
    [self performSelector:_cmd withObject:nil afterDelay:timeBetweenAttempts];
    [self listen];
    [NSObject cancelPreviousPerformRequestsWithTarget:self selector:_cmd object:nil];
    [receiver listensAgain];
}

// The daemon takes its observers with it. They are added again after a delay, because the centre must first
// notice that the daemon has gone.
- (void)connectionDied:(NSNotification*)notification {
    [self performSelector:@selector(listenAgain) withObject:nil afterDelay:0];
}

@end

#pragma once

#import <Foundation/Foundation.h>

/// Is notified of what hosts post.
@protocol QBSPHostNotices

/// The host that the notice names stored other hot keys.
- (void)hotKeysChanged:(NSNotification*)notice;

/// The user has left the host's pane after changing hot keys.
- (void)preferencesUpdated:(NSNotification*)notice;

/// The host wrote another list of applications in whose full-screen mode the Sorter hides.
- (void)hideListUpdated:(NSNotification*)notice;

/// The notification daemon had died; from now on notices arrive again.
- (void)listensAgain;

@end

/// Listens to what any host's pane posts, and listens again after the notification daemon died.
@interface QBSPHostListener : NSObject {
    id<QBSPHostNotices> receiver;
}

/// The receiver is not retained.
- (id)initWithReceiver:(id<QBSPHostNotices>)aReceiver;

/// Begins to listen.
- (void)listen;

@end

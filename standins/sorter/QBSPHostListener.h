#pragma once

#import <Foundation/Foundation.h>

/// Receives the notifications that hosts post.
@protocol QBSPHostNotices

/// The host that the notification names changed its hot keys.
- (void)hotKeysChanged:(NSNotification*)notice;

/// The user has left the host's pane after changing hot keys.
- (void)preferencesUpdated:(NSNotification*)notice;

/// The host wrote a new list of applications in whose full-screen mode the Sorter hides.
- (void)hideListUpdated:(NSNotification*)notice;

/// The notification daemon had died; notifications now arrive again.
- (void)listensAgain;

@end

/// Listens for the notifications of any host's pane, and listens again after the notification daemon died.
@interface QBSPHostListener : NSObject {
    id<QBSPHostNotices> receiver;
}

/// The receiver is not retained.
- (id)initWithReceiver:(id<QBSPHostNotices>)aReceiver;

/// Starts listening.
- (void)listen;

@end

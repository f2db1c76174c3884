#pragma once

#include "platform/Workspace.h"

#import <Foundation/Foundation.h>

#include <memory>

namespace qbsp::appkit {
struct TerminationReceiverParts;
}

/// Passes the workspace's notices of terminations on to its observer.
@interface QBSPTerminationReceiver : NSObject {
    std::unique_ptr<qbsp::appkit::TerminationReceiverParts> parts;
}

- (id)initWithObserver:(std::weak_ptr<qbsp::platform::TerminationObserver>)anObserver;

/// Reports the bundle identifier that the notification's user information has; none when it has none.
- (void)applicationTerminated:(NSNotification*)notification;

@end

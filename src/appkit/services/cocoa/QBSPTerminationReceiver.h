#pragma once

#include "platform/Workspace.h"

#import <Foundation/Foundation.h>

#include <memory>

namespace qbsp::appkit {
struct TerminationReceiverParts;
}

/// Forwards the workspace's termination notifications to its observer.
@interface QBSPTerminationReceiver : NSObject {
    std::unique_ptr<qbsp::appkit::TerminationReceiverParts> parts;
}

- (id)initWithObserver:(std::weak_ptr<qbsp::platform::TerminationObserver>)anObserver;

/// Reports the bundle identifier in the notification's userInfo, if there is one.
- (void)applicationTerminated:(NSNotification*)notification;

@end

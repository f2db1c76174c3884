#pragma once

#include "platform/Workspace.h"

#import <Foundation/Foundation.h>

#include <memory>

/// Passes the workspace's notices of terminations on to its observer.
@interface QBSPTerminationReceiver : NSObject {
    std::weak_ptr<qbsp::platform::TerminationObserver> observer;
}

- (id)initWithObserver:(std::weak_ptr<qbsp::platform::TerminationObserver>)anObserver;

- (void)applicationTerminated:(NSNotification*)notification;

@end

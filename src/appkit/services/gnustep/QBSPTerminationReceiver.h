#pragma once

#include "platform/Workspace.h"

#import <Foundation/Foundation.h>

#include <memory>

namespace qbsp::appkit {
struct TerminationReceiverParts;
}

/// Posted in this process, without an object, when an application was found running that may have launched
/// without a notification. Observers of terminations then look at the running applications again, so that
/// they notice when that application ends.
extern NSString* const QBSPApplicationFoundRunning;

/// Reports terminated applications to its observer, until it is invalidated or the observer has gone. It is
/// woken through the run loop of the thread that created it, and does nothing while no application launches
/// or terminates.
///
/// It knows the applications that are running when it starts observing, that post the workspace's
/// notification that they have launched or will terminate, or that are running when another application does
/// so or is found running. An application that starts and ends between two such moments without posting a
/// notification is not reported; a process that uses AppKit posts both, unless it is killed before it has
/// finished launching.
@interface QBSPTerminationReceiver : NSObject <RunLoopEvents> {
    std::unique_ptr<qbsp::appkit::TerminationReceiverParts> parts;
}

/// Starts observing. The name is that of the workspace's notification that an application terminates.
- (id)initWithObserver:(std::weak_ptr<qbsp::platform::TerminationObserver>)anObserver name:(NSString*)name;

/// Stops observing. Must be called before the last reference is released.
- (void)invalidate;

@end

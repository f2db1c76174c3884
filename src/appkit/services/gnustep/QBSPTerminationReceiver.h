#pragma once

#include "platform/Workspace.h"

#import <Foundation/Foundation.h>

#include <memory>

namespace qbsp::appkit {
struct TerminationReceiverParts;
}

/// Posted in this process, without an object, when it was found that an application runs which may have
/// started without a notice. Who observes terminations looks anew, so that the end of whatever the pane was
/// told to be running is noticed.
extern NSString* const QBSPApplicationFoundRunning;

/// Reports the ends of applications to its observer, until it is invalidated or the observer has gone. It
/// waits for the system to wake the run loop of the thread that made it, and does nothing while nothing ends
/// or starts.
///
/// An application is known when it runs at the beginning, when it posts the workspace's notice that it has
/// launched or that it will terminate, or when it runs while another one does so or is found running. The end
/// of one that starts and ends between two such moments without a notice of its own is not reported; a
/// process that uses AppKit posts both notices, unless it is killed before it has finished launching.
@interface QBSPTerminationReceiver : NSObject <RunLoopEvents> {
    std::unique_ptr<qbsp::appkit::TerminationReceiverParts> parts;
}

/// Observes from now on. The name is that of the workspace's notice that an application terminates.
- (id)initWithObserver:(std::weak_ptr<qbsp::platform::TerminationObserver>)anObserver name:(NSString*)name;

/// Reports nothing from now on. Must be sent before the last reference goes.
- (void)invalidate;

@end

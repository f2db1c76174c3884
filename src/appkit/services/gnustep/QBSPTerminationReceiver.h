#pragma once

#include "platform/Workspace.h"
#include "processes/Terminations.h"

#import <Foundation/Foundation.h>

#include <memory>

/// Reports to its observer what the workspace announces, and what it does not: an application that was killed
/// announces nothing, and few announce their identifier. Looks for ended applications until it is invalidated
/// or the observer has gone.
@interface QBSPTerminationReceiver : NSObject {
    std::weak_ptr<qbsp::platform::TerminationObserver> observer;
    std::unique_ptr<processes::Terminations> terminations;
    NSTimer* timer;
}

- (id)initWithObserver:(std::weak_ptr<qbsp::platform::TerminationObserver>)anObserver name:(NSString*)name;

/// Reports nothing from now on.
- (void)invalidate;

@end

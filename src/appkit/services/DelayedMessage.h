#pragma once

#import <Foundation/Foundation.h>
#include <functional>

namespace qbsp::appkit {

/// Calls the message once, after the delay in seconds, from the main thread's run loop in its default mode.
/// Keeps the message and the object keptAlive alive until then.
void sendAfterDelay(std::function<void()> message, NSTimeInterval delay, id keptAlive);

} // namespace qbsp::appkit

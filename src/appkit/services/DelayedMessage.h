#pragma once

#import <Foundation/Foundation.h>
#include <functional>

namespace qbsp::appkit {

/// Sends the message once, from the main thread's run loop in its default mode, after that many seconds.
/// Keeps what the message holds, and the object on whose behalf it is sent, until then.
void sendAfterDelay(std::function<void()> message, NSTimeInterval delay, id keptAlive);

} // namespace qbsp::appkit

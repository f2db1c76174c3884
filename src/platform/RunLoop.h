#pragma once

#include "platform/Name.h"

#include <chrono>
#include <functional>

namespace qbsp::platform {

using Seconds = std::chrono::duration<double>;

/// The main thread's run loop.
class RunLoop {
public:
    virtual ~RunLoop() = default;

    /// Sends the message once, after the delay, in the loop's default mode. Keeps what the message holds
    /// until then. Messages scheduled earlier stay scheduled.
    virtual void performSelectorAfterDelay(Selector selector, std::function<void()> message,
                                           Seconds delay) = 0;
};

} // namespace qbsp::platform

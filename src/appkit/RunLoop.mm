#include "appkit/RunLoop.h"

#include "appkit/DelayedMessage.h"

#include <utility>

namespace qbsp::appkit {

void AppKitRunLoop::performSelectorAfterDelay(platform::Selector, std::function<void()> message,
                                              platform::Seconds delay) {
    sendAfterDelay(std::move(message), delay.count(), owner_);
}

} // namespace qbsp::appkit

#include "appkit/services/RunLoop.h"

#include "appkit/services/DelayedMessage.h"

#include <utility>

namespace qbsp::appkit {

void AppKitRunLoop::performSelectorAfterDelay(platform::Selector, std::function<void()> message,
                                              platform::Seconds delay) {
    sendAfterDelay(std::move(message), delay.count(), owner_);
}

} // namespace qbsp::appkit

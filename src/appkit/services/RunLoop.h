#pragma once

#include "platform/RunLoop.h"

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

/// The main thread's run loop. A pending message keeps the owner of the services alive.
class AppKitRunLoop final : public platform::RunLoop {
public:
    /// The owner is not retained, because it owns this object.
    explicit AppKitRunLoop(id owner) : owner_(owner) {}

    void performSelectorAfterDelay(platform::Selector selector, std::function<void()> message,
                                   platform::Seconds delay) override;

private:
    id owner_;
};

} // namespace qbsp::appkit

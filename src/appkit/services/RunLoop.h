#pragma once

#include "platform/RunLoop.h"

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

/// The main thread's run loop. The object that owns the services stays alive while a message waits.
class AppKitRunLoop final : public platform::RunLoop {
public:
    /// The owner holds this, and is therefore not retained by it.
    explicit AppKitRunLoop(id owner) : owner_(owner) {}

    void performSelectorAfterDelay(platform::Selector selector, std::function<void()> message,
                                   platform::Seconds delay) override;

private:
    id owner_;
};

} // namespace qbsp::appkit

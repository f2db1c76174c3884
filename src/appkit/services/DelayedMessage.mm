#include "appkit/services/DelayedMessage.h"

#include "appkit/bridge/Retained.h"

#include <memory>
#include <utility>

namespace qbsp::appkit {

struct DelayedMessage {
    // Declared first and so destroyed last, because the message may still use this object's services.
    Retained<id> keptAlive;
    std::function<void()> send;
};

} // namespace qbsp::appkit

/// The target of a delayed message. The run loop retains it until the message has been sent.
@interface QBSPDelayedMessage : NSObject {
    std::unique_ptr<qbsp::appkit::DelayedMessage> message;
}
@end

@implementation QBSPDelayedMessage

- (id)initWithMessage:(std::unique_ptr<qbsp::appkit::DelayedMessage>)aMessage {
    if ((self = [super init]) != nil)
        message = std::move(aMessage);
    return self;
}

- (void)send {
    message->send();
}

@end

namespace qbsp::appkit {

void sendAfterDelay(std::function<void()> message, NSTimeInterval delay, id keptAlive) {
    auto delayed =
        std::make_unique<DelayedMessage>(DelayedMessage{Retained<id>(keptAlive), std::move(message)});
    const auto target =
        Retained<QBSPDelayedMessage*>::adopt([[QBSPDelayedMessage alloc] initWithMessage:std::move(delayed)]);
    [target.get() performSelector:@selector(send) withObject:nil afterDelay:delay];
}

} // namespace qbsp::appkit

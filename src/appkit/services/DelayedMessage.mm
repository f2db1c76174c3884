#include "appkit/services/DelayedMessage.h"

#include "appkit/bridge/Retained.h"

namespace {

struct Delayed {
    // What the message holds goes before the object whose services it may still use.
    qbsp::appkit::Retained<id> keptAlive;
    std::function<void()> message;
};

} // namespace

/// The target of a delayed message. The run loop retains it until the message was sent.
@interface QBSPDelayedMessage : NSObject {
    void* delayed;
}
@end

@implementation QBSPDelayedMessage

- (id)initWithDelayed:(void*)aDelayed {
    if ((self = [super init]) != nil)
        delayed = aDelayed;
    return self;
}

- (void)dealloc {
    delete static_cast<Delayed*>(delayed);
    [super dealloc];
}

- (void)send {
    static_cast<Delayed*>(delayed)->message();
}

@end

namespace qbsp::appkit {

void sendAfterDelay(std::function<void()> message, NSTimeInterval delay, id keptAlive) {
    auto* delayed = new Delayed{Retained<id>(keptAlive), std::move(message)};
    const auto target =
        Retained<QBSPDelayedMessage*>::adopt([[QBSPDelayedMessage alloc] initWithDelayed:delayed]);
    [target.get() performSelector:@selector(send) withObject:nil afterDelay:delay];
}

} // namespace qbsp::appkit

#pragma once

#include "platform/RunLoop.h"
#include "scenario/Decimal.h"
#include "simulated/Transcript.h"

#include <functional>
#include <map>

namespace qbsp::simulated {

/// The main run loop. Its clock moves only in runFor().
class SimulatedRunLoop final : public platform::RunLoop {
public:
    explicit SimulatedRunLoop(Transcript& transcript) : transcript_(transcript) {}

    void performSelectorAfterDelay(platform::Selector selector, std::function<void()> message,
                                   platform::Seconds delay) override;

    /// Lets that many seconds pass and sends the messages that fall due by then, in order.
    void runFor(const scenario::Decimal& seconds);

private:
    Transcript& transcript_;
    scenario::Decimal now_;
    std::multimap<scenario::Decimal, std::function<void()>> waiting_; ///< by the moment they fall due
};

} // namespace qbsp::simulated

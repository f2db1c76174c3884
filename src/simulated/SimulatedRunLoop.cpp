#include "simulated/SimulatedRunLoop.h"

#include "simulated/Json.h"

#include <tuple>

namespace qbsp::simulated {

void SimulatedRunLoop::performSelectorAfterDelay(platform::Selector selector, std::function<void()> message,
                                                 platform::Seconds delay) {
    std::ignore = transcript_.fails();
    transcript_.record("pane performSelector:withObject:afterDelay:",
                       {jsonText(selector.text), "null", json(delay.count())});
    waiting_.emplace(now_ + scenario::Decimal::of(delay.count()), std::move(message));
}

void SimulatedRunLoop::runFor(const scenario::Decimal& seconds) {
    const scenario::Decimal end = now_ + seconds;
    while (!waiting_.empty() && waiting_.begin()->first <= end) {
        now_ = waiting_.begin()->first;
        const auto message = std::move(waiting_.begin()->second);
        waiting_.erase(waiting_.begin());
        message();
    }
    now_ = end;
}

} // namespace qbsp::simulated

#include "stages/NotificationsStage.h"

#include "simulated/Json.h"
#include "simulated/SimulatedPlatform.h"

#include <algorithm>
#include <deque>
#include <iterator>

namespace qbsp::contracts {

namespace {

std::string lineOf(const Received& posted) {
    return "NSDistributedNotificationCenter postNotificationName:object:userInfo:options:(" +
           simulated::jsonText(posted.name) + ", " + simulated::jsonText(posted.object) + ", " +
           (posted.userInfo ? simulated::json(*posted.userInfo) : "null") + ", 1)";
}

class SimulatedStage final : public NotificationsStage {
public:
    platform::DistributedNotificationCenter& notifications() override { return platform_.notifications; }

    bool receivesNext(const Received& expected) override {
        std::ranges::move(platform_.transcript.take(), std::back_inserter(posted_));
        std::erase_if(posted_,
                      [](const std::string& line) { return line.find("Nobody") != std::string::npos; });
        if (posted_.empty() || posted_.front() != lineOf(expected))
            return false;
        posted_.pop_front();
        return true;
    }

private:
    simulated::SimulatedPlatform platform_;
    std::deque<std::string> posted_;
};

} // namespace

std::unique_ptr<NotificationsStage> NotificationsStage::simulated() {
    return std::make_unique<SimulatedStage>();
}

} // namespace qbsp::contracts

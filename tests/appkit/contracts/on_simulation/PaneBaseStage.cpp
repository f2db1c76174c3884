#include "stages/PaneBaseStage.h"

#include "simulated/SimulatedPlatform.h"

namespace qbsp::contracts {

namespace {

class SimulatedStage final : public PaneBaseStage {
public:
    platform::PreferencePaneBase& base() override { return base_; }

    void letPlatformRefuse() override { world_.baseAgrees = false; }

    std::vector<std::string> messages() override {
        const std::string receiver = "NSPreferencePane ";
        std::vector<std::string> messages;
        for (const std::string& line : transcript_.take())
            messages.push_back(line.substr(receiver.size(), line.find('(') - receiver.size()));
        return messages;
    }

    void showMainView(bool) override {}

private:
    simulated::World world_;
    simulated::Transcript transcript_;
    simulated::SimulatedPaneBase base_{world_, transcript_};
};

} // namespace

std::unique_ptr<PaneBaseStage> PaneBaseStage::simulated() {
    return std::make_unique<SimulatedStage>();
}

} // namespace qbsp::contracts

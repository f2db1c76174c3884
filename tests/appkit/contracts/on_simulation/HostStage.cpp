#include "stages/HostStage.h"

#include "simulated/SimulatedPlatform.h"

namespace qbsp::contracts {

namespace {

class SimulatedStage final : public HostStage {
public:
    SimulatedStage() { platform_.world.translations["Greeting"] = "Good day"; }

    platform::Host& host() override { return platform_.host; }

    platform::ProcessInfo& processInfo() override { return platform_.processInfo; }

    platform::Log& log() override { return platform_.log; }

    platform::StringComparison& strings() override { return platform_.strings; }

    platform::Bundles& bundles() override { return platform_.bundles; }

    void letHostAnswer(HostAnswers answers) override {
        platform_.world.sandboxed = answers.isSandboxed;
        platform_.world.pro = answers.isPro;
    }

    void letHostNotKnowTheQuestions() override { letHostAnswer({}); }

    std::string trueProcessName() const override { return platform_.world.processName; }

    std::string trueMainBundlePath() const override { return platform_.world.mainBundle; }

    std::string logged(const std::function<void()>& function) override {
        function();
        std::string text;
        for (const std::string& line : platform_.transcript.take())
            text += line + "\n";
        return text;
    }

private:
    simulated::SimulatedPlatform platform_;
};

} // namespace

std::unique_ptr<HostStage> HostStage::simulated() {
    return std::make_unique<SimulatedStage>();
}

} // namespace qbsp::contracts

#include "stages/StoresStage.h"

#include "simulated/SimulatedPlatform.h"

namespace qbsp::contracts {

namespace {

class SimulatedStage final : public StoresStage {
public:
    platform::Preferences& preferences() override { return platform_.preferences; }

    platform::UserDefaults& userDefaults() override { return platform_.userDefaults; }

    void otherProcessSets(const std::string& domain, const std::string& key,
                          const platform::Value& value) override {
        platform_.world.domains[domain].put(key, value);
    }

    void otherProcessSetsDefault(const std::string& key, const platform::Value& value) override {
        platform_.world.defaults.put(key, value);
    }

    platform::Dictionary domainSeenByOthers(const std::string& domain) override {
        return platform_.world.domains[domain].seenByOthers();
    }

    platform::Dictionary defaultsSeenByOthers() override { return platform_.world.defaults.seenByOthers(); }

    bool flushInVain(const std::function<void()>& set, const std::function<bool()>& flush) override {
        set();
        platform_.transcript.failOperation(1);
        return flush();
    }

private:
    simulated::SimulatedPlatform platform_;
};

} // namespace

std::unique_ptr<StoresStage> StoresStage::simulated() {
    return std::make_unique<SimulatedStage>();
}

} // namespace qbsp::contracts

#include "stages/ApplicationsStage.h"

#include "simulated/SimulatedPlatform.h"

namespace qbsp::contracts {

namespace {

class SimulatedStage final : public ApplicationsStage {
public:
    platform::Workspace& workspace() override { return platform_.workspace; }

    platform::RunningApplications& runningApplications() override { return platform_.runningApplications; }

    platform::LaunchServices& launchServices() override { return platform_.launchServices; }

    platform::ServiceManagement& serviceManagement() override { return platform_.serviceManagement; }

    platform::URL application() override {
        platform_.world.launches = true;
        platform_.world.launchError.reset();
        platform_.world.launchServicesStatus = 0;
        return platform::URL::fileURLWithPath("/Applications/Idle.app");
    }

    platform::URL nothing() override {
        platform_.world.launches = false;
        platform_.world.launchError = "There is no such application.";
        platform_.world.launchServicesStatus = -10814;
        return platform::URL::fileURLWithPath("/Applications/Nothing.app");
    }

    void awaitLaunch() override {}

    void start() override { platform_.world.running.emplace(idleIdentifier.text); }

    void end(const std::vector<std::shared_ptr<platform::TerminationObserver>>& observers) override {
        platform_.world.running.clear();
        platform_.world.terminates = false;
        const platform::Notification termination{
            {{"NSApplicationBundleIdentifier", std::string(idleIdentifier.text)}}};
        for (const auto& observer : observers)
            std::ignore = platform_.workspace.report(*observer, termination);
    }

    bool eventually(const std::function<bool()>& condition) override { return condition(); }

    void makeJob(platform::BundleIdentifier identifier) override {
        platform_.world.jobs = {{{"Label", std::string(identifier.text)}, {"OnDemand", true}}};
    }

private:
    simulated::SimulatedPlatform platform_;
};

} // namespace

std::unique_ptr<ApplicationsStage> ApplicationsStage::simulated() {
    return std::make_unique<SimulatedStage>();
}

} // namespace qbsp::contracts

#include "stages/ApplicationsStage.h"

#include "appkit/services/Applications.h"
#include "applications/Applications.h"
#include "on_appkit/Eventually.h"
#include "processes/Application.h"

#include <gtest/gtest.h>

#import <Foundation/Foundation.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace qbsp::contracts {

namespace fs = std::filesystem;

namespace {

const std::string identifier(idleIdentifier.text);

/// Makes the bundle of an application that waits to be asked to quit.
void makeBundle(const fs::path& bundle) {
    fs::create_directories(bundle / "Resources");
    fs::copy_file(IDLE_PROGRAM, bundle / "Idle");
    std::ofstream(bundle / "Resources" / "Info-gnustep.plist")
        << "{ CFBundleIdentifier = \"" << identifier << "\"; NSExecutable = Idle; }";
}

bool kill(const std::vector<processes::Application>& applications) {
    for (const auto& application : applications)
        ::kill(application.process.pid, SIGKILL);
    return applications.empty();
}

class AppKitStage final : public ApplicationsStage {
public:
    AppKitStage() {
        makeBundle(bundle_);
        makeBundle(embedded_);
    }

    ~AppKitStage() override {
        endAll();
        for (const fs::path& made : {bundle_, embedded_, configuration_, data_})
            fs::remove_all(made);
    }

    platform::Workspace& workspace() override { return workspace_; }

    platform::RunningApplications& runningApplications() override { return runningApplications_; }

    platform::LaunchServices& launchServices() override { return launchServices_; }

    platform::ServiceManagement& serviceManagement() override { return serviceManagement_; }

    platform::URL application() override { return platform::URL::fileURLWithPath(bundle_); }

    platform::URL nothing() override { return platform::URL::fileURLWithPath(bundle_.string() + ".away"); }

    void awaitLaunch() override {
        EXPECT_TRUE(eventually([] { return !applications::runningApplications(identifier).empty(); }));
    }

    void start() override {
        NSString* executable = [NSString stringWithUTF8String:(bundle_ / "Idle").c_str()];
        [NSTask launchedTaskWithLaunchPath:executable arguments:[NSArray array]];
        awaitLaunch();
    }

    void end(const std::vector<std::shared_ptr<platform::TerminationObserver>>&) override {
        // One that was launched just now is found only once its program runs.
        EXPECT_TRUE(eventually([] { return !applications::runningApplications(identifier).empty(); }));
        endAll();
    }

    bool eventually(const std::function<bool()>& condition) override {
        return contracts::eventually(condition);
    }

    void makeJob(platform::BundleIdentifier job) override {
        serviceManagement_.loginItemSetEnabled(job, true);
    }

private:
    void endAll() {
        EXPECT_TRUE(eventually([] { return kill(applications::runningApplications(identifier)); }));
    }

    const fs::path bundle_ = fs::path(std::getenv("HOME")) / "Idle.app";
    const fs::path embedded_ = fs::read_symlink("/proc/self/exe").parent_path() /
                               "Contents/Library/LoginItems" / (identifier + ".app");
    const fs::path configuration_ = std::getenv("XDG_CONFIG_HOME");
    const fs::path data_ = std::getenv("XDG_DATA_HOME");
    appkit::AppKitWorkspace workspace_;
    appkit::AppKitRunningApplications runningApplications_;
    appkit::AppKitLaunchServices launchServices_;
    appkit::AppKitServiceManagement serviceManagement_;
};

} // namespace

std::unique_ptr<ApplicationsStage> ApplicationsStage::appKit() {
    return std::make_unique<AppKitStage>();
}

} // namespace qbsp::contracts

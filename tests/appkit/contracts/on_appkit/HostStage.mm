#include "stages/HostStage.h"

#include "appkit/bridge/Retained.h"
#include "appkit/services/HostProcess.h"
#include "appkit/services/StringComparison.h"

#include <gtest/gtest.h>

#import <AppKit/AppKit.h>

#include <filesystem>
#include <fstream>

/// The application object of a host that knows the pane's questions.
@interface ContractHost : NSObject {
@public
    qbsp::contracts::HostAnswers answers;
}
@end

@implementation ContractHost

- (BOOL)isSandboxed {
    return answers.isSandboxed;
}

- (BOOL)isPro {
    return answers.isPro;
}

@end

namespace qbsp::contracts {

namespace fs = std::filesystem;

namespace {

class AppKitStage final : public HostStage {
public:
    ~AppKitStage() override { NSApp = application_; }

    platform::Host& host() override { return host_; }

    platform::ProcessInfo& processInfo() override { return processInfo_; }

    platform::Log& log() override { return log_; }

    platform::StringComparison& strings() override { return strings_; }

    platform::Bundles& bundles() override { return bundles_; }

    void letHostAnswer(HostAnswers answers) override {
        knowing_.get()->answers = answers;
        NSApp = static_cast<id>(knowing_.get());
    }

    void letHostNotKnowTheQuestions() override { NSApp = application_; }

    std::string trueProcessName() const override {
        std::ifstream stream("/proc/self/cmdline");
        std::string path;
        std::getline(stream, path, '\0');
        return fs::path(path).filename();
    }

    std::string trueMainBundlePath() const override {
        return fs::read_symlink("/proc/self/exe").parent_path();
    }

    std::string logged(const std::function<void()>& function) override {
        testing::internal::CaptureStderr();
        function();
        return testing::internal::GetCapturedStderr();
    }

private:
    const decltype(NSApp) application_ = NSApp;
    const appkit::Retained<ContractHost*> knowing_ =
        appkit::Retained<ContractHost*>::adopt([[ContractHost alloc] init]);
    appkit::AppKitHost host_;
    appkit::AppKitProcessInfo processInfo_;
    appkit::AppKitLog log_;
    appkit::AppKitStringComparison strings_;
    appkit::AppKitBundles bundles_{[ContractHost class]};
};

} // namespace

std::unique_ptr<HostStage> HostStage::appKit() {
    return std::make_unique<AppKitStage>();
}

} // namespace qbsp::contracts

#include "stages/DialogsStage.h"

#include "appkit/bridge/Retained.h"
#include "appkit/services/Dialogs.h"
#include "appkit/services/RunLoop.h"
#import "on_appkit/ContractUser.h"
#include "on_appkit/Eventually.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace qbsp::contracts {

namespace fs = std::filesystem;

namespace {

class AppKitStage final : public DialogsStage {
public:
    AppKitStage() {
        fs::create_directories(folder_ / "Clock.app");
        fs::create_directories(folder_ / "Mail.app");
        std::ofstream(folder_ / "Notes.txt") << "notes\n";
        [user_.get() watch];
    }

    ~AppKitStage() override {
        [user_.get() leave];
        fs::remove_all(folder_);
    }

    platform::RunLoop& runLoop() override { return runLoop_; }

    platform::Alerts& alerts() override { return alerts_; }

    platform::OpenPanels& openPanels() override { return openPanels_; }

    platform::Seconds runUntil(const std::function<bool()>& condition) override {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_TRUE(eventually(condition));
        return std::chrono::steady_clock::now() - start;
    }

    void letUserPress(const std::string& button) override { user_.get()->button = button; }

    std::vector<std::string> textsOfAlert() override { return user_.get()->texts; }

    std::string defaultButtonOfAlert() override { return user_.get()->defaultButton; }

    std::string folder() const override { return folder_; }

    void letUserChoose(const std::string& name) override {
        user_.get()->choice = name;
        letUserPress("OK");
    }

    void letUserCancel() override {
        user_.get()->choice.reset();
        letUserPress("Cancel");
    }

private:
    const fs::path folder_ = fs::path(std::getenv("HOME")) / "applications";
    const appkit::Retained<ContractUser*> user_ =
        appkit::Retained<ContractUser*>::adopt([[ContractUser alloc] init]);
    appkit::AppKitRunLoop runLoop_{user_.get()};
    appkit::AppKitAlerts alerts_;
    appkit::AppKitOpenPanels openPanels_{user_.get()};
};

} // namespace

std::unique_ptr<DialogsStage> DialogsStage::appKit() {
    return std::make_unique<AppKitStage>();
}

} // namespace qbsp::contracts

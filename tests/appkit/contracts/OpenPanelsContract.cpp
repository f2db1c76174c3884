#include "Contract.h"
#include "stages/DialogsStage.h"

namespace qbsp::contracts {

namespace {

class OpenPanelsContract : public Contract<DialogsStage> {
protected:
    void SetUp() override {
        panel->setCanChooseDirectories(false);
        panel->setAllowsMultipleSelection(false);
        panel->setAllowedFileTypes({"app"});
        panel->setDirectoryURL(platform::URL::fileURLWithPath(stage->folder()));
    }

    void begin() {
        panel->beginSheetModalForWindow(nullptr, [this](std::int64_t result) { results.push_back(result); });
    }

    void runUntilAnswered() {
        stage->runUntil([this] { return !results.empty(); });
    }

    const std::shared_ptr<platform::OpenPanel> panel = stage->openPanels().openPanel();
    std::vector<std::int64_t> results;
};

} // namespace

TEST_P(OpenPanelsContract, TheHandlerIsCalledOnceAndAfterTheCallHasReturned) {
    stage->letUserChoose("Mail.app");

    begin();

    EXPECT_TRUE(results.empty());
    runUntilAnswered();
    EXPECT_EQ(results, std::vector{platform::NSOKButton});
    EXPECT_EQ(panel->chosenURL(), platform::URL::fileURLWithPath(stage->folder() + "/Mail.app"));
}

TEST_P(OpenPanelsContract, ACancelledPanelGivesAnotherResult) {
    stage->letUserCancel();

    begin();
    runUntilAnswered();

    ASSERT_EQ(results.size(), 1U) << "the handler should have been called once";
    EXPECT_NE(results.front(), platform::NSOKButton);
}

TEST_P(OpenPanelsContract, NoFilesAreChosenAtFirst) {
    EXPECT_EQ(panel->chosenURL(), std::nullopt);
}

TEST_P(OpenPanelsContract, TheHandlerAndWhatItHoldsAreKeptUntilItWasCalledAndNoLonger) {
    auto held = std::make_shared<int>(0);
    const std::weak_ptr<int> watched = held;
    stage->letUserCancel();
    panel->beginSheetModalForWindow(nullptr, [held](std::int64_t) { ++*held; });

    held.reset();

    EXPECT_FALSE(watched.expired());
    stage->runUntil([&] { return watched.expired(); });
}

INSTANTIATE_TEST_SUITE_P(On, OpenPanelsContract, onBothSides<DialogsStage>(), nameOfSide);

} // namespace qbsp::contracts

#include "Contract.h"
#include "stages/ApplicationsStage.h"

namespace qbsp::contracts {

namespace {

constexpr platform::NotificationName didTerminate{"NSWorkspaceDidTerminateApplicationNotification"};
constexpr auto withoutActivation = platform::LaunchOptions::withoutActivation;
const std::string idle(idleIdentifier.text);

class Observer final : public platform::TerminationObserver {
public:
    void appDied(const platform::Notification& notification) override {
        reported.push_back(
            platform::stringEntry(notification.userInfo, "NSApplicationBundleIdentifier").value_or(""));
    }

    std::vector<std::string> reported;
};

class WorkspaceContract : public Contract<ApplicationsStage> {
protected:
    [[nodiscard]] platform::LaunchResult launch() {
        auto launched = workspace.launchApplicationAtURL(stage->application(), withoutActivation);
        stage->awaitLaunch();
        return launched;
    }

    platform::Workspace& workspace = stage->workspace();
    const std::shared_ptr<Observer> observer = std::make_shared<Observer>();
    const std::shared_ptr<Observer> other = std::make_shared<Observer>();
};

class RunningApplicationContract : public WorkspaceContract {};

} // namespace

TEST_P(WorkspaceContract, ALaunchThatSucceedsReturnsTheApplicationAndNoError) {
    const auto launched = launch();

    EXPECT_NE(launched.application, nullptr);
    EXPECT_EQ(launched.error, std::nullopt);
}

TEST_P(WorkspaceContract, ALaunchThatFailsReturnsAnErrorAndNoApplication) {
    const auto launched = workspace.launchApplicationAtURL(stage->nothing(), withoutActivation);

    EXPECT_EQ(launched.application, nullptr);
    EXPECT_FALSE(launched.error.value_or("").empty());
}

TEST_P(WorkspaceContract, AnObserverIsNotifiedWhichApplicationTerminated) {
    stage->start();
    workspace.addObserver(observer, didTerminate);

    stage->end({observer});

    EXPECT_TRUE(stage->eventually([this] { return !observer->reported.empty(); }));
    EXPECT_EQ(observer->reported, std::vector{idle});
}

TEST_P(WorkspaceContract, AnObserverIsNotifiedOfWhatItFoundRunningLater) {
    workspace.addObserver(observer, didTerminate);
    stage->start();
    EXPECT_TRUE(stage->runningApplications().applicationIsRunning(idleIdentifier));

    stage->end({observer});

    EXPECT_TRUE(stage->eventually([this] { return !observer->reported.empty(); }));
    EXPECT_EQ(observer->reported, std::vector{idle});
}

TEST_P(WorkspaceContract, AnObserverThatWasRemovedIsNotNotified) {
    stage->start();
    workspace.addObserver(observer, didTerminate);
    workspace.addObserver(observer, didTerminate);
    workspace.addObserver(other, didTerminate);

    workspace.removeObserver(*observer);

    stage->end({observer, other});
    EXPECT_TRUE(stage->eventually([this] { return !other->reported.empty(); }));
    EXPECT_TRUE(observer->reported.empty());
}

TEST_P(WorkspaceContract, AnObserverThatWasNotAddedCanBeRemoved) {
    stage->start();
    workspace.addObserver(other, didTerminate);

    workspace.removeObserver(*observer);

    stage->end({other});
    EXPECT_TRUE(stage->eventually([this] { return !other->reported.empty(); }));
}

TEST_P(WorkspaceContract, AnObserverIsNotKeptAliveAndTheOthersAreStillNotified) {
    auto gone = std::make_shared<Observer>();
    const std::weak_ptr<Observer> watched = gone;
    stage->start();
    workspace.addObserver(gone, didTerminate);
    workspace.addObserver(other, didTerminate);

    gone.reset();

    EXPECT_TRUE(watched.expired());
    stage->end({other});
    EXPECT_TRUE(stage->eventually([this] { return !other->reported.empty(); }));
}

TEST_P(RunningApplicationContract, ARequestToQuitIsDeliveredWhileTheApplicationRuns) {
    const auto launched = launch();
    ASSERT_NE(launched.application, nullptr);

    EXPECT_TRUE(launched.application->terminate());
}

TEST_P(RunningApplicationContract, ARequestToQuitThatCannotBeDeliveredReturnsFalse) {
    const auto launched = launch();
    ASSERT_NE(launched.application, nullptr);

    stage->end({});

    EXPECT_FALSE(launched.application->terminate());
}

INSTANTIATE_TEST_SUITE_P(On, WorkspaceContract, onBothSides<ApplicationsStage>(), nameOfSide);
INSTANTIATE_TEST_SUITE_P(On, RunningApplicationContract, onBothSides<ApplicationsStage>(), nameOfSide);

} // namespace qbsp::contracts

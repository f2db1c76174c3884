#include "PaneTest.h"

namespace qbsp {

using StartAndStop = PaneTest;

TEST_F(StartAndStop, StartsThroughTheRegistrarAndWatchesNothing) {
    loadView();

    pane().showSorterApplication();

    EXPECT_EQ(transcript(), R"(
NSUserDefaults synchronize() -> true
NSApp isSandboxed() -> false
registrar showSorterApplication()
)");
    EXPECT_FALSE(pane().hasSandboxedSorterApp());
}

TEST_F(StartAndStop, StopsThroughTheRegistrarAndForgetsTheRestart) {
    loadView();
    pane().enableAttentionLabel(nullptr);

    pane().closeSorterApplication();

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> false
registrar closeSorterApplication()
)");
    EXPECT_FALSE(pane().shouldRestartSorter());
}

TEST_F(StartAndStop, ForgetsTheRestartEvenWithoutARegistrar) {
    world.loader = simulated::Loader::empty;
    loadView();
    pane().enableAttentionLabel(nullptr);

    pane().closeSorterApplication();

    EXPECT_FALSE(pane().shouldRestartSorter());
}

class SandboxedStartAndStop : public PaneTest {
protected:
    SandboxedStartAndStop() { world.sandboxed = true; }

    void start() {
        pane().showSorterApplication();
        forget();
    }
};

TEST_F(SandboxedStartAndStop, LaunchesTheEmbeddedSorterWithoutActivation) {
    loadView();

    pane().showSorterApplication();

    EXPECT_EQ(transcript(), R"(
NSUserDefaults synchronize() -> true
NSApp isSandboxed() -> true
NSWorkspace launchApplicationAtURL:options:configuration:error:("/Quarrybook.app/Contents/Library/LoginItems/Z3K8WQ4N7P.quarry2.QuarrybookSorter.app", 512, null) -> [true, null]
)");
    EXPECT_TRUE(pane().hasSandboxedSorterApp());
}

TEST_F(SandboxedStartAndStop, LogsALaunchThatReportsAnError) {
    world.launches = false;
    world.launchError = "Damaged.";
    loadView();

    pane().showSorterApplication();

    EXPECT_EQ(operations().back(), R"(NSLog("ERROR: Failed to start Sorter: Damaged."))");
    EXPECT_FALSE(pane().hasSandboxedSorterApp());
}

TEST_F(SandboxedStartAndStop, LeavesTheButtonAtShowAfterAFailedLaunch) {
    world.launches = false;
    world.launchError = "Damaged.";
    loadView();
    start();

    pane().updateToggleButtonTitle();

    EXPECT_EQ(shown("toggleLaunchButton", "title"), "Show");
}

TEST_F(SandboxedStartAndStop, JudgesALaunchByItsErrorAndNotByItsResult) {
    loadView();

    world.launches = false;
    pane().showSorterApplication();
    EXPECT_EQ(transcript().find("NSLog"), std::string::npos);

    world.launches = true;
    world.launchError = "Slow.";
    pane().showSorterApplication();
    EXPECT_EQ(operations().back(), R"(NSLog("ERROR: Failed to start Sorter: Slow."))");
    EXPECT_TRUE(pane().hasSandboxedSorterApp());
}

TEST_F(SandboxedStartAndStop, ForgetsTheEarlierApplicationAfterAFailedLaunch) {
    loadView();
    start();
    world.launches = false;

    pane().showSorterApplication();

    EXPECT_FALSE(pane().hasSandboxedSorterApp());
}

TEST_F(SandboxedStartAndStop, TerminatesWhatItLaunchedAndKeepsIt) {
    loadView();
    start();
    pane().enableAttentionLabel(nullptr);

    pane().closeSorterApplication();

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> true
NSRunningApplication terminate() -> true
)");
    EXPECT_TRUE(pane().hasSandboxedSorterApp());
    EXPECT_TRUE(pane().shouldRestartSorter());
}

TEST_F(SandboxedStartAndStop, LogsATerminationThatCouldNotBeDelivered) {
    world.terminates = false;
    loadView();
    start();

    pane().closeSorterApplication();

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> true
NSRunningApplication terminate() -> false
NSLog("ERROR: Unable to stop the Sorter")
)");
}

TEST_F(SandboxedStartAndStop, LeavesTheButtonAtQuitAfterATerminationThatCouldNotBeDelivered) {
    world.terminates = false;
    loadView();
    start();
    world.running.insert(embedded);
    pane().closeSorterApplication();

    pane().updateToggleButtonTitle();

    EXPECT_EQ(shown("toggleLaunchButton", "title"), "Quit");
}

TEST_F(SandboxedStartAndStop, StopsNothingBeforeAnythingWasStarted) {
    loadView();

    pane().closeSorterApplication();

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> true
)");
}

TEST_F(SandboxedStartAndStop, SendsTheRegistrarNothing) {
    world.sandboxed = false;
    loadView();
    world.sandboxed = true;

    pane().showSorterApplication();
    pane().closeSorterApplication();

    EXPECT_EQ(transcript().find("registrar"), std::string::npos);
}

} // namespace qbsp

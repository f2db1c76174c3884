#include "PaneTest.h"

namespace qbsp {

using SorterProcess = PaneTest;

TEST_F(SorterProcess, IsStartedThroughTheRegistrarByAClick) {
    select();

    pane().toggleSorterProcess(nullptr);

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> false
toggleLaunchButton setEnabled:(false)
QBApplicationIsRunning("com.quarrybook.Sorter") -> false
NSUserDefaults synchronize() -> true
NSApp isSandboxed() -> false
registrar showSorterApplication()
attentionLabel setHidden:(true)
pane performSelector:withObject:afterDelay:("updateToggleButtonTitle", null, 0.75)
)");
}

TEST_F(SorterProcess, IsStoppedThroughTheRegistrarByAClick) {
    world.running.insert(full);
    select();
    pane().enableAttentionLabel(nullptr);

    pane().toggleSorterProcess(nullptr);

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> false
toggleLaunchButton setEnabled:(false)
QBApplicationIsRunning("com.quarrybook.Sorter") -> true
NSApp isSandboxed() -> false
registrar closeSorterApplication()
attentionLabel setHidden:(true)
pane performSelector:withObject:afterDelay:("updateToggleButtonTitle", null, 0.75)
)");
    EXPECT_FALSE(pane().shouldRestartSorter());
}

TEST_F(SorterProcess, OfTheSoloEditionIsTheSoloSorter) {
    world.pro = false;
    world.running.insert(full);
    select();

    pane().toggleSorterProcess(nullptr);

    EXPECT_EQ(operations().at(2), R"(QBApplicationIsRunning("com.quarrybook.SoloSorter") -> false)");
}

TEST_F(SorterProcess, IsStartedDespiteAStaleTitle) {
    world.running.insert(full);
    select();
    world.running.clear();

    pane().toggleSorterProcess(nullptr);

    EXPECT_NE(transcript().find("registrar showSorterApplication()"), std::string::npos);
}

TEST_F(SorterProcess, LeavesTheButtonDisabledUntilTheRefresh) {
    select();

    pane().toggleSorterProcess(nullptr);
    world.running.insert(full);
    forget();

    wait("0.74");
    EXPECT_EQ(transcript(), nothing);
    EXPECT_EQ(shown("toggleLaunchButton", "title"), "Show");
    EXPECT_EQ(shown("toggleLaunchButton", "enabled"), false);

    wait("0.01");
    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> false
QBApplicationIsRunning("com.quarrybook.Sorter") -> true
NSBundle localizedStringForKey:value:table:("Quit", "", null) -> "Quit"
toggleLaunchButton setTitle:("Quit")
toggleLaunchButton setEnabled:(true)
)");
}

TEST_F(SorterProcess, EnablesTheButtonEarlierWhenItsEndIsReported) {
    world.running.insert(full);
    select();
    pane().toggleSorterProcess(nullptr);
    world.running.clear();

    EXPECT_TRUE(platform.workspace.report(pane(), {{{"NSApplicationBundleIdentifier", full}}}));

    EXPECT_EQ(shown("toggleLaunchButton", "title"), "Show");
    EXPECT_EQ(shown("toggleLaunchButton", "enabled"), true);
}

TEST_F(SorterProcess, KeepsItsTitleAfterAClickWithoutARegistrar) {
    world.loader = simulated::Loader::absent;
    select();

    pane().toggleSorterProcess(nullptr);
    EXPECT_EQ(shown("toggleLaunchButton", "enabled"), false);
    EXPECT_EQ(transcript().find("registrar"), std::string::npos);

    wait("0.75");
    EXPECT_EQ(shown("toggleLaunchButton", "title"), "Show");
    EXPECT_EQ(shown("toggleLaunchButton", "enabled"), true);
}

TEST_F(SorterProcess, IsShownAsRunningWhenItTakesLongerToQuitThanTheRefreshWaits) {
    world.running.insert(full);
    select();
    pane().toggleSorterProcess(nullptr);

    wait("0.75");
    EXPECT_EQ(shown("toggleLaunchButton", "title"), "Quit");

    world.running.clear();
    pane().updateToggleButtonTitle();
    EXPECT_EQ(shown("toggleLaunchButton", "title"), "Show");
}

TEST_F(SorterProcess, IsStartedEvenWhenTheDefaultsCannotBeFlushed) {
    world.synchronizes = false;
    select();

    pane().toggleSorterProcess(nullptr);

    EXPECT_EQ(operations().at(5), "registrar showSorterApplication()");
}

TEST_F(SorterProcess, HidesTheRestartNoticeWithEveryClick) {
    for (const bool sandboxed : {false, true})
        for (const bool running : {false, true}) {
            Stage stage;
            stage.world.sandboxed = sandboxed;
            if (running)
                stage.world.running = {full, embedded};
            stage.select();
            stage.controls().attentionLabel->setHidden(false);

            stage.pane().toggleSorterProcess(nullptr);

            EXPECT_EQ(stage.shown("attentionLabel", "hidden"), true);
        }
}

TEST_F(SorterProcess, IsFollowedByARequestedResetWhenItStops) {
    world.running.insert(full);
    select();
    pane().setDeleteFullScreenSettingsInSorter(true);

    pane().toggleSorterProcess(nullptr);

    const auto asked = operations();
    EXPECT_EQ(asked.at(4), "registrar closeSorterApplication()");
    EXPECT_EQ(asked.at(5), R"(NSBundle executablePath("registrar") -> "/PlugIn/SorterPlugin")");
    EXPECT_EQ(asked.at(asked.size() - 3), "hideAppsTable reloadData()");
    EXPECT_EQ(asked.at(asked.size() - 2), "attentionLabel setHidden:(true)");
    EXPECT_FALSE(pane().deleteFullScreenSettingsInSorter());
}

TEST_F(SorterProcess, IsFollowedByNoResetWhenItStarts) {
    select();
    pane().setDeleteFullScreenSettingsInSorter(true);

    pane().toggleSorterProcess(nullptr);

    EXPECT_EQ(transcript().find("CFPreferences"), std::string::npos);
    EXPECT_TRUE(pane().deleteFullScreenSettingsInSorter());
}

TEST_F(SorterProcess, IsFollowedByNoResetThatNobodyRequested) {
    world.running.insert(full);
    select();

    pane().toggleSorterProcess(nullptr);

    EXPECT_EQ(transcript().find("CFPreferences"), std::string::npos);
}

} // namespace qbsp

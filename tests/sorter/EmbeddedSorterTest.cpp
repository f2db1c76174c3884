#include "PaneTest.h"

namespace qbsp {

class EmbeddedSorter : public PaneTest {
protected:
    EmbeddedSorter() { world.sandboxed = true; }
};

TEST_F(EmbeddedSorter, IsSwitchedOnByAClickWhenItHasNoJob) {
    select();

    pane().toggleSorterProcess(nullptr);

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> true
QBApplicationIsRunning("Z3K8WQ4N7P.quarry2.QuarrybookSorter") -> false
SMCopyAllJobDictionaries("kSMDomainUserLaunchd") -> null
SMLoginItemSetEnabled("Z3K8WQ4N7P.quarry2.QuarrybookSorter", true)
attentionLabel setHidden:(true)
pane performSelector:withObject:afterDelay:("updateToggleButtonTitle", null, 0.75)
)");
}

TEST_F(EmbeddedSorter, IsSwitchedOffAndOnByAClickWhenItsJobIsOnDemand) {
    world.jobs = {{{"Label", embedded}, {"OnDemand", true}}};
    select();

    pane().toggleSorterProcess(nullptr);

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> true
QBApplicationIsRunning("Z3K8WQ4N7P.quarry2.QuarrybookSorter") -> false
SMCopyAllJobDictionaries("kSMDomainUserLaunchd") -> [{"Label": "Z3K8WQ4N7P.quarry2.QuarrybookSorter", "OnDemand": true}]
SMLoginItemSetEnabled("Z3K8WQ4N7P.quarry2.QuarrybookSorter", false)
SMLoginItemSetEnabled("Z3K8WQ4N7P.quarry2.QuarrybookSorter", true)
attentionLabel setHidden:(true)
pane performSelector:withObject:afterDelay:("updateToggleButtonTitle", null, 0.75)
)");
}

TEST_F(EmbeddedSorter, IsSwitchedOffByAClickWithoutALookAtItsJobWhenItRuns) {
    world.running.insert(embedded);
    select();

    pane().toggleSorterProcess(nullptr);

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> true
QBApplicationIsRunning("Z3K8WQ4N7P.quarry2.QuarrybookSorter") -> true
SMLoginItemSetEnabled("Z3K8WQ4N7P.quarry2.QuarrybookSorter", false)
attentionLabel setHidden:(true)
pane performSelector:withObject:afterDelay:("updateToggleButtonTitle", null, 0.75)
)");
}

TEST_F(EmbeddedSorter, IsNotTakenForTheEditionsSorter) {
    world.running.insert(full);
    select();

    pane().toggleSorterProcess(nullptr);

    EXPECT_NE(transcript().find("QuarrybookSorter\", true)"), std::string::npos);
}

TEST_F(EmbeddedSorter, IsShownAsItIsWhenSwitchingItHadNoEffect) {
    for (const bool running : {false, true}) {
        running ? void(world.running.insert(embedded)) : world.running.clear();
        select();
        pane().toggleSorterProcess(nullptr);

        wait("0.75");

        EXPECT_EQ(shown("toggleLaunchButton", "title"), running ? "Quit" : "Show");
    }
}

TEST_F(EmbeddedSorter, LeavesTheButtonEnabledWhenItIsSwitched) {
    select();

    pane().toggleSorterProcess(nullptr);

    EXPECT_EQ(shown("toggleLaunchButton", "enabled"), true);
}

TEST_F(EmbeddedSorter, IsSwitchedByBothOfTwoQuickClicksAndTwoRefreshesFollow) {
    const char* const refresh = R"(
NSApp isSandboxed() -> true
QBApplicationIsRunning("Z3K8WQ4N7P.quarry2.QuarrybookSorter") -> true
NSBundle localizedStringForKey:value:table:("Quit", "", null) -> "Quit"
toggleLaunchButton setTitle:("Quit")
toggleLaunchButton setEnabled:(true)
)";
    select();

    pane().toggleSorterProcess(nullptr);
    world.running.insert(embedded);
    wait("0.25");
    pane().toggleSorterProcess(nullptr);
    EXPECT_NE(transcript().find("QuarrybookSorter\", false)"), std::string::npos);

    wait("0.5");
    EXPECT_EQ(transcript(), refresh) << "the first click's refresh";
    wait("0.25");
    EXPECT_EQ(transcript(), refresh) << "the second click's refresh";
    wait("9");
    EXPECT_EQ(transcript(), nothing);
}

TEST_F(EmbeddedSorter, ChangesNothingAboutTheRestartFlagWhenItIsSwitched) {
    world.running.insert(embedded);
    select();
    pane().enableAttentionLabel(nullptr);

    pane().toggleSorterProcess(nullptr);

    EXPECT_TRUE(pane().shouldRestartSorter());
}

TEST_F(EmbeddedSorter, IsFollowedByARequestedResetWhenItIsSwitchedOff) {
    world.running.insert(embedded);
    select();
    pane().setDeleteFullScreenSettingsInSorter(true);

    pane().toggleSorterProcess(nullptr);

    const auto asked = operations();
    EXPECT_EQ(asked.at(2), R"(SMLoginItemSetEnabled("Z3K8WQ4N7P.quarry2.QuarrybookSorter", false))");
    EXPECT_EQ(asked.at(3), R"(NSBundle executablePath(null) -> "/Host/Quarrybook")");
    EXPECT_FALSE(pane().deleteFullScreenSettingsInSorter());
}

TEST_F(EmbeddedSorter, IsFollowedByNoResetWhenItIsSwitchedOn) {
    select();
    pane().setDeleteFullScreenSettingsInSorter(true);

    pane().toggleSorterProcess(nullptr);

    EXPECT_TRUE(pane().deleteFullScreenSettingsInSorter());
}

} // namespace qbsp

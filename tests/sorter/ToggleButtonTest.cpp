#include "PaneTest.h"

namespace qbsp {

class ToggleButton : public PaneTest {
protected:
    /// The workspace reports that an application of that identifier terminated.
    bool terminate(const platform::Value& identifier) {
        platform::Notification termination;
        if (identifier.exists())
            termination.userInfo.emplace("NSApplicationBundleIdentifier", identifier);
        return platform.workspace.report(pane(), termination);
    }
};

TEST_F(ToggleButton, SaysShowWhileTheSorterDoesNotRun) {
    loadView();

    pane().updateToggleButtonTitle();

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> false
QBApplicationIsRunning("com.quarrybook.Sorter") -> false
NSBundle localizedStringForKey:value:table:("Show", "", null) -> "Show"
toggleLaunchButton setTitle:("Show")
toggleLaunchButton setEnabled:(true)
)");
}

TEST_F(ToggleButton, SaysQuitWhileTheSoloSorterRunsInTheSoloEdition) {
    world.pro = false;
    world.running.insert(solo);
    loadView();

    pane().updateToggleButtonTitle();

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> false
QBApplicationIsRunning("com.quarrybook.SoloSorter") -> true
NSBundle localizedStringForKey:value:table:("Quit", "", null) -> "Quit"
toggleLaunchButton setTitle:("Quit")
toggleLaunchButton setEnabled:(true)
)");
}

TEST_F(ToggleButton, FollowsTheEmbeddedSorterInTheSandboxedHost) {
    world.sandboxed = true;
    world.running.insert(embedded);
    loadView();

    pane().updateToggleButtonTitle();

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> true
QBApplicationIsRunning("Z3K8WQ4N7P.quarry2.QuarrybookSorter") -> true
NSBundle localizedStringForKey:value:table:("Quit", "", null) -> "Quit"
toggleLaunchButton setTitle:("Quit")
toggleLaunchButton setEnabled:(true)
)");
}

TEST_F(ToggleButton, IsEnabledByEveryRefresh) {
    loadView();
    for (const bool running : {true, false}) {
        running ? void(world.running.insert(full)) : world.running.clear();
        controls().toggleLaunchButton->setEnabled(false);

        pane().updateToggleButtonTitle();

        EXPECT_EQ(shown("toggleLaunchButton", "enabled"), true);
    }
}

TEST_F(ToggleButton, IsRefreshedAtOnceWhenTheEditionsSorterTerminates) {
    world.running.insert(full);
    select();
    world.running.clear();

    EXPECT_TRUE(terminate(full));

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> false
QBApplicationIsRunning("com.quarrybook.Sorter") -> false
NSBundle localizedStringForKey:value:table:("Show", "", null) -> "Show"
toggleLaunchButton setTitle:("Show")
toggleLaunchButton setEnabled:(true)
)");
}

TEST_F(ToggleButton, IsNotRefreshedWhenAnotherApplicationTerminates) {
    select();

    EXPECT_TRUE(terminate("com.example.other"));
    EXPECT_TRUE(terminate("com.quarrybook.sorter"));
    EXPECT_TRUE(terminate(solo));

    EXPECT_EQ(transcript(), nothing);
}

TEST_F(ToggleButton, IsNotRefreshedByATerminationWithoutAnIdentifier) {
    select();

    EXPECT_TRUE(terminate({}));
    EXPECT_TRUE(terminate(7));

    EXPECT_EQ(transcript(), nothing);
}

TEST_F(ToggleButton, FollowsTheSoloSorterInTheSoloEdition) {
    world.pro = false;
    select();

    EXPECT_TRUE(terminate(full));
    EXPECT_EQ(transcript(), nothing);
    EXPECT_TRUE(terminate(solo));
    EXPECT_NE(transcript(), nothing);
}

TEST_F(ToggleButton, IsNotRefreshedWhenTheEmbeddedSorterTerminates) {
    world.sandboxed = true;
    select();

    EXPECT_TRUE(terminate(embedded));

    EXPECT_EQ(transcript(), nothing);
}

TEST_F(ToggleButton, IsRefreshedWhenTheEditionsSorterTerminatesInTheSandboxedHostToo) {
    world.sandboxed = true;
    select();

    EXPECT_TRUE(terminate(full));

    EXPECT_NE(transcript(), nothing);
}

TEST_F(ToggleButton, FollowsTerminationsFromTheViewsSetUpUntilThePaneIsFirstLeft) {
    createPane();
    EXPECT_FALSE(terminate(full));

    session.loadView();
    EXPECT_TRUE(terminate(full));

    pane().willSelect();
    EXPECT_TRUE(terminate(full));

    pane().willUnselect();
    EXPECT_FALSE(terminate(full));
}

TEST_F(ToggleButton, IgnoresTerminationsWhenThePaneIsShownAgain) {
    select();
    unselect();

    pane().willSelect();

    EXPECT_FALSE(terminate(full));
}

TEST_F(ToggleButton, IgnoresTerminationsAfterThePaneIsGone) {
    select();
    simulated::PaneSession other(platform);
    ASSERT_TRUE(other.create());
    other.loadView();
    session.dealloc();
    forget();

    EXPECT_TRUE(platform.workspace.report(other.pane(), {{{"NSApplicationBundleIdentifier", full}}}));

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> false
QBApplicationIsRunning("com.quarrybook.Sorter") -> false
NSBundle localizedStringForKey:value:table:("Show", "", null) -> "Show"
toggleLaunchButton setTitle:("Show")
toggleLaunchButton setEnabled:(true)
)") << "only the other pane refreshes its button";
}

} // namespace qbsp

#include "PaneTest.h"

namespace qbsp {

class PaneCreation : public PaneTest {
protected:
    /// Creates a pane in a host that sent class start-up before.
    bool create() {
        session.initialize();
        forget();
        return session.create();
    }
};

TEST_F(PaneCreation, StartsTheClassUpBeforeTheFirstPane) {
    EXPECT_TRUE(session.create());

    EXPECT_EQ(transcript(), R"(
NSUserDefaults objectForKey:("SorterTabIsInvisible") -> null
NSUserDefaults setBool:forKey:(false, "SorterTabIsInvisible")
NSPreferencePane initWithBundle:() -> true
NSApp isSandboxed() -> false
NSClassFromString("QBSPLoader") -> true
QBSPLoader defaultLoader() -> true
)");
}

TEST_F(PaneCreation, TakesTheRegistrarOfTheOrdinaryHost) {
    EXPECT_TRUE(create());

    EXPECT_NE(pane().loginItemRegistrar(), nullptr);
    EXPECT_EQ(transcript(), R"(
NSPreferencePane initWithBundle:() -> true
NSApp isSandboxed() -> false
NSClassFromString("QBSPLoader") -> true
QBSPLoader defaultLoader() -> true
)");
}

TEST_F(PaneCreation, TakesAMissingRegistrarUnchecked) {
    world.loader = simulated::Loader::empty;

    EXPECT_TRUE(create());

    EXPECT_EQ(pane().loginItemRegistrar(), nullptr);
    EXPECT_EQ(transcript(), R"(
NSPreferencePane initWithBundle:() -> true
NSApp isSandboxed() -> false
NSClassFromString("QBSPLoader") -> true
QBSPLoader defaultLoader() -> false
)");
}

TEST_F(PaneCreation, LogsAMissingSorterPluginAndGoesOn) {
    world.loader = simulated::Loader::absent;

    EXPECT_TRUE(create());

    EXPECT_EQ(pane().loginItemRegistrar(), nullptr);
    EXPECT_EQ(transcript(), R"(
NSPreferencePane initWithBundle:() -> true
NSApp isSandboxed() -> false
NSClassFromString("QBSPLoader") -> false
NSLog("ERROR: SorterPlugin is not available!")
)");
}

TEST_F(PaneCreation, RegistersTheEmbeddedSorterInTheSandboxedHost) {
    world.sandboxed = true;

    EXPECT_TRUE(create());

    EXPECT_EQ(pane().loginItemRegistrar(), nullptr);
    EXPECT_EQ(transcript(), R"(
NSPreferencePane initWithBundle:() -> true
NSApp isSandboxed() -> true
LSRegisterURL("/Quarrybook.app/Contents/Library/LoginItems/Z3K8WQ4N7P.quarry2.QuarrybookSorter.app", true) -> 0
)");
}

TEST_F(PaneCreation, LogsAFailedRegistrationAndGoesOn) {
    world.sandboxed = true;
    for (const std::int32_t status : {-10814, -1, 1}) {
        world.launchServicesStatus = status;

        EXPECT_TRUE(create());

        EXPECT_EQ(operations().back(), R"(NSLog("ERROR: LSRegisterURL failed!"))") << status;
    }
}

TEST_F(PaneCreation, LogsARefusalOfTheBaseClassAndEndsThere) {
    world.baseAgrees = false;

    EXPECT_FALSE(create());

    EXPECT_EQ(transcript(), R"(
NSPreferencePane initWithBundle:() -> false
NSLog("ERROR: Couldn't load SorterPrefPane plugin.")
)");
}

TEST_F(PaneCreation, LeavesEveryFieldNullOrNo) {
    EXPECT_TRUE(create());

    EXPECT_EQ(pane().sorterAppURL(), std::nullopt);
    EXPECT_FALSE(pane().shouldRestartSorter());
    EXPECT_FALSE(pane().deleteFullScreenSettingsInSorter());
    EXPECT_FALSE(pane().isSorterProApp());
    EXPECT_FALSE(pane().tableArray().exists());
    EXPECT_FALSE(pane().hideAppsUpdated());
    EXPECT_FALSE(pane().hasSandboxedSorterApp());
    EXPECT_FALSE(controls().hideAppsTable.isConnected());
}

using Teardown = PaneTest;

TEST_F(Teardown, MakesNoPlatformCallEvenWithoutAView) {
    createPane();

    session.dealloc();

    EXPECT_EQ(transcript(), nothing);
}

TEST_F(Teardown, LeavesTheObserverAdded) {
    select();

    session.dealloc();

    EXPECT_EQ(transcript(), nothing);
}

TEST_F(Teardown, EndsNoDelayedMessage) {
    select();
    pane().toggleSorterProcess(nullptr);
    forget();

    session.dealloc();
    wait("0.75");

    EXPECT_EQ(transcript(), R"(
NSApp isSandboxed() -> false
QBApplicationIsRunning("com.quarrybook.Sorter") -> false
NSBundle localizedStringForKey:value:table:("Show", "", null) -> "Show"
toggleLaunchButton setTitle:("Show")
toggleLaunchButton setEnabled:(true)
)");
}

} // namespace qbsp

#include "PaneTest.h"

namespace qbsp {

using Deselect = PaneTest;

TEST_F(Deselect, DoesLittleWhenNothingChanged) {
    select();

    pane().willUnselect();

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> false
registrar unregisterApplication:("/PlugIn/Quarrybook Sorter.app") -> true
NSPreferencePane willUnselect()
)");
}

TEST_F(Deselect, CommitsInThisOrder) {
    storeHideList(full, platform::Dictionary{{"Mail", false}});
    world.running.insert(full);
    world.registered = true;
    select();
    editRow(0, true);
    pane().enableAttentionLabel(nullptr);

    pane().willUnselect();

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> false
registrar registerApplication:("/PlugIn/Quarrybook Sorter.app") -> true
QBApplicationIsRunning("com.quarrybook.Sorter") -> true
NSUserDefaults synchronize() -> true
NSDistributedNotificationCenter postNotificationName:object:userInfo:options:("QBSSorterPreferencesUpdated", "Quarrybook", {"visibility": true}, 1)
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
CFPreferencesSetAppValue("UserSpecifiedFullScreenApplications", {"Mail": true}, "com.quarrybook.Sorter")
CFPreferencesSynchronize("com.quarrybook.Sorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
QBApplicationIsRunning("com.quarrybook.Sorter") -> true
NSDistributedNotificationCenter postNotificationName:object:userInfo:options:("QBSSorterHideAppUpdated", "Quarrybook", null, 1)
NSPreferencePane willUnselect()
)");
}

TEST_F(Deselect, AsksNoRegistrarAndShowsNoAlertInTheSandboxedHost) {
    world.sandboxed = true;
    select();
    for (const auto state : {platform::ButtonState::off, platform::ButtonState::on}) {
        controls().showAtLoginCheckbox->setState(state);
        forget();

        pane().willUnselect();

        EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> true
NSPreferencePane willUnselect()
)");
    }
}

TEST_F(Deselect, RemovesTheObserverEveryTime) {
    select();
    unselect();

    pane().willUnselect();

    EXPECT_EQ(operations().front(), "NSWorkspace removeObserver:()");
}

TEST_F(Deselect, WorksWithoutAView) {
    createPane();

    pane().willUnselect();

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> false
registrar unregisterApplication:(null) -> true
NSPreferencePane willUnselect()
)");
}

} // namespace qbsp

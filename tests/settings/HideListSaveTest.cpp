#include "PaneTest.h"

namespace qbsp {

class HideListSave : public PaneTest {
protected:
    /// Shows the pane on a list with Mail and Player, both off, and ticks the first. The host is
    /// sandboxed, so that the login item is left alone.
    void tickMail(const char* sorter = full) {
        world.sandboxed = true;
        storeHideList(sorter, platform::Dictionary{{"Mail", false}, {"Player", "NO"}});
        select();
        editRow(0, true);
    }
};

TEST_F(HideListSave, FlushesInsideTheSuiteThenTellsARunningSorter) {
    world.running.insert(full);
    tickMail();

    pane().willUnselect();

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> true
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
CFPreferencesSetAppValue("UserSpecifiedFullScreenApplications", {"Mail": true, "Player": "NO"}, "com.quarrybook.Sorter")
CFPreferencesSynchronize("com.quarrybook.Sorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
QBApplicationIsRunning("com.quarrybook.Sorter") -> true
NSDistributedNotificationCenter postNotificationName:object:userInfo:options:("QBSSorterHideAppUpdated", "Quarrybook", null, 1)
NSPreferencePane willUnselect()
)");
    EXPECT_FALSE(pane().hideAppsUpdated());
}

TEST_F(HideListSave, WritesAndForgetsTheChangeEvenWhenTheSorterDoesNotRun) {
    tickMail();

    pane().willUnselect();

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> true
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
CFPreferencesSetAppValue("UserSpecifiedFullScreenApplications", {"Mail": true, "Player": "NO"}, "com.quarrybook.Sorter")
CFPreferencesSynchronize("com.quarrybook.Sorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
QBApplicationIsRunning("com.quarrybook.Sorter") -> false
NSPreferencePane willUnselect()
)");
    EXPECT_FALSE(pane().hideAppsUpdated());
}

TEST_F(HideListSave, CanBeSeenByOtherProcesses) {
    tickMail();

    pane().willUnselect();

    EXPECT_EQ(platform::entry(world.domains[full].seenByOthers(), hideListKey),
              (platform::Dictionary{{"Mail", true}, {"Player", "NO"}}));
}

TEST_F(HideListSave, GoesToTheSoloDomainInTheSoloEdition) {
    world.pro = false;
    world.running.insert(full);
    tickMail(solo);

    pane().willUnselect();

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> true
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
CFPreferencesSetAppValue("UserSpecifiedFullScreenApplications", {"Mail": true, "Player": "NO"}, "com.quarrybook.SoloSorter")
CFPreferencesSynchronize("com.quarrybook.SoloSorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
QBApplicationIsRunning("com.quarrybook.SoloSorter") -> false
NSPreferencePane willUnselect()
)");
}

TEST_F(HideListSave, IsNotRepeatedWhenNothingMoreChanged) {
    tickMail();
    unselect();

    pane().willUnselect();

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> true
NSPreferencePane willUnselect()
)");
}

TEST_F(HideListSave, WritesAnEmptyListThatIsMarkedChanged) {
    tickMail();
    pane().deleteFullScreenSettings();
    forget();

    pane().willUnselect();

    EXPECT_EQ(hideList(full), platform::Dictionary{});
}

TEST_F(HideListSave, WritesAnEmptyListWhenNoneWasEverLoaded) {
    world.sandboxed = true;
    select();
    pane().addHideApp(nullptr);
    platform.openPanels.endSheet(platform::NSOKButton, "/Applications/Mail.app");
    forget();

    pane().willUnselect();

    EXPECT_FALSE(pane().tableArray().exists());
    EXPECT_EQ(hideList(full), platform::Dictionary{});
}

TEST_F(HideListSave, KeepsWhatElseTheDomainHolds) {
    tickMail();
    world.domains[full].put("Position", 3.5);

    pane().willUnselect();

    EXPECT_EQ(world.domains[full].value("Position"), 3.5);
}

TEST_F(HideListSave, NeverAsksForTheEmbeddedSorter) {
    world.running.insert(embedded);
    tickMail();

    pane().willUnselect();

    const auto text = transcript();
    EXPECT_EQ(text.find(embedded), std::string::npos);
    EXPECT_EQ(text.find("postNotificationName"), std::string::npos);
}

} // namespace qbsp

#include "PaneTest.h"

namespace qbsp {

class Reset : public PaneTest {
protected:
    void putFactoryList(const std::string& sorterName, const platform::Value& hideFlags) {
        world.disk.putPropertyList("/PlugIn/" + sorterName + ".app/Contents/Resources/FactoryDefaults.plist",
                                   {{hideListKey, hideFlags}});
    }
};

TEST_F(Reset, WritesTheFactoryListNotifiesTheSorterAndShowsTheList) {
    putFactoryList("Quarrybook Sorter", platform::Dictionary{{"Player", true}, {"mail", false}});
    storeHideList(full, platform::Dictionary{{"Zebra", true}});
    world.running.insert(full);
    select();

    pane().resetFullscreenSettings(nullptr);

    EXPECT_EQ(transcript(), R"(
NSBundle executablePath("registrar") -> "/PlugIn/SorterPlugin"
NSDictionary dictionaryWithContentsOfFile:("/PlugIn/Quarrybook Sorter.app/Contents/Resources/FactoryDefaults.plist") -> {"UserSpecifiedFullScreenApplications": {"Player": true, "mail": false}}
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
CFPreferencesSetValue("UserSpecifiedFullScreenApplications", {"Player": true, "mail": false}, "com.quarrybook.Sorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesSynchronize("com.quarrybook.Sorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
QBApplicationIsRunning("com.quarrybook.Sorter") -> true
NSDistributedNotificationCenter postNotificationName:object:userInfo:options:("QBSSorterHideAppUpdated", "Quarrybook", null, 1)
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
CFPreferencesCopyAppValue("UserSpecifiedFullScreenApplications", "com.quarrybook.Sorter") -> {"Player": true, "mail": false}
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
hideAppsTable reloadData()
hideAppsTable reloadData()
)");
    EXPECT_EQ(pane().tableArray().at(0).appName, "mail");
    EXPECT_EQ(shown("hideAppsTable", "rows"), std::int64_t{2});
}

TEST_F(Reset, IsAllThatTheButtonDoes) {
    select();

    pane().deleteFullScreenSettings();
    const auto direct = transcript();
    pane().resetFullscreenSettings(nullptr);

    EXPECT_EQ(transcript(), direct);
}

TEST_F(Reset, PostsNothingWhenTheSorterDoesNotRun) {
    putFactoryList("Quarrybook Sorter", platform::Dictionary{{"Player", true}});
    select();

    pane().resetFullscreenSettings(nullptr);

    EXPECT_EQ(transcript().find("postNotificationName"), std::string::npos);
    EXPECT_EQ(hideList(full), (platform::Dictionary{{"Player", true}}));
    EXPECT_EQ(pane().indexOfAppInList("Player"), 0);
}

TEST_F(Reset, RemovesTheKeyAndEmptiesTheTableWithoutAFactoryFile) {
    storeHideList(full, platform::Dictionary{{"Mail", true}});
    select();

    pane().resetFullscreenSettings(nullptr);

    EXPECT_EQ(transcript(), R"(
NSBundle executablePath("registrar") -> "/PlugIn/SorterPlugin"
NSDictionary dictionaryWithContentsOfFile:("/PlugIn/Quarrybook Sorter.app/Contents/Resources/FactoryDefaults.plist") -> null
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
CFPreferencesSetValue("UserSpecifiedFullScreenApplications", null, "com.quarrybook.Sorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesSynchronize("com.quarrybook.Sorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
QBApplicationIsRunning("com.quarrybook.Sorter") -> false
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
CFPreferencesCopyAppValue("UserSpecifiedFullScreenApplications", "com.quarrybook.Sorter") -> null
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
hideAppsTable reloadData()
)");
    EXPECT_TRUE(pane().tableArray().exists());
    EXPECT_EQ(shown("hideAppsTable", "rows"), std::int64_t{0});
}

TEST_F(Reset, OfTheSoloEditionWritesTheFullDomainAndAnnouncesTheSoloOne) {
    world.pro = false;
    world.running = {solo};
    putFactoryList("Quarrybook Solo Sorter", platform::Dictionary{{"Player", true}});
    storeHideList(solo, platform::Dictionary{{"Mail", true}});
    select();

    pane().resetFullscreenSettings(nullptr);

    EXPECT_EQ(transcript(), R"(
NSBundle executablePath("registrar") -> "/PlugIn/SorterPlugin"
NSDictionary dictionaryWithContentsOfFile:("/PlugIn/Quarrybook Solo Sorter.app/Contents/Resources/FactoryDefaults.plist") -> {"UserSpecifiedFullScreenApplications": {"Player": true}}
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
CFPreferencesSetValue("UserSpecifiedFullScreenApplications", {"Player": true}, "com.quarrybook.Sorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesSynchronize("com.quarrybook.SoloSorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
QBApplicationIsRunning("com.quarrybook.SoloSorter") -> true
NSDistributedNotificationCenter postNotificationName:object:userInfo:options:("QBSSorterHideAppUpdated", "Quarrybook", null, 1)
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
CFPreferencesCopyAppValue("UserSpecifiedFullScreenApplications", "com.quarrybook.SoloSorter") -> {"Mail": true}
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
hideAppsTable reloadData()
hideAppsTable reloadData()
)");
    EXPECT_EQ(hideList(solo), (platform::Dictionary{{"Mail", true}}));
    EXPECT_EQ(pane().indexOfAppInList("Mail"), 0);
}

TEST_F(Reset, OfTheSoloEditionFlushesOnlyTheSoloDomain) {
    world.pro = false;
    putFactoryList("Quarrybook Solo Sorter", platform::Dictionary{{"Player", true}});
    select();

    pane().resetFullscreenSettings(nullptr);

    EXPECT_EQ(hideList(full), (platform::Dictionary{{"Player", true}}));
    EXPECT_EQ(world.domains[full].seenByOthers(), platform::Dictionary{});
}

TEST_F(Reset, OfTheSoloEditionIsNotAnnouncedToTheFullSorter) {
    world.pro = false;
    world.running = {full, embedded};
    select();

    pane().resetFullscreenSettings(nullptr);

    EXPECT_EQ(transcript().find("postNotificationName"), std::string::npos);
}

TEST_F(Reset, LooksBesideTheHostsCodeInTheSandboxedHost) {
    world.sandboxed = true;
    select();

    pane().resetFullscreenSettings(nullptr);

    const auto asked = operations();
    EXPECT_EQ(asked.at(0), R"(NSBundle executablePath(null) -> "/Host/Quarrybook")");
    EXPECT_EQ(
        asked.at(1),
        R"(NSDictionary dictionaryWithContentsOfFile:("/Host/Quarrybook Sorter.app/Contents/Resources/FactoryDefaults.plist") -> null)");
}

TEST_F(Reset, ReadsNoFileWithoutARegistrarAndAnExecutable) {
    world.loader = simulated::Loader::absent;
    world.noClassExecutable = std::nullopt;
    select();

    pane().resetFullscreenSettings(nullptr);

    EXPECT_EQ(operations().at(1), "NSDictionary dictionaryWithContentsOfFile:(null) -> null");
}

TEST_F(Reset, WritesAFactoryValueOfAnyKindAsItIs) {
    putFactoryList("Quarrybook Sorter", "no list");
    storeHideList(full, platform::Dictionary{{"Mail", true}});
    select();

    pane().resetFullscreenSettings(nullptr);

    EXPECT_EQ(hideList(full), "no list");
    EXPECT_TRUE(pane().tableArray().records().empty());
}

TEST_F(Reset, RemovesUnsavedRowsAndLeavesTheListMarkedAsChanged) {
    storeHideList(full, platform::Dictionary{{"Mail", true}});
    putFactoryList("Quarrybook Sorter", platform::Dictionary{{"Player", true}});
    select();
    pane().addHideApp(nullptr);
    platform.openPanels.endSheet(platform::NSOKButton, "/Applications/Added.app");

    pane().resetFullscreenSettings(nullptr);

    EXPECT_EQ(pane().indexOfAppInList("Added"), -1);
    EXPECT_TRUE(pane().hideAppsUpdated());
}

TEST_F(Reset, MarksNothingAsChanged) {
    storeHideList(full, platform::Dictionary{{"Mail", true}});
    select();

    pane().resetFullscreenSettings(nullptr);

    EXPECT_FALSE(pane().hideAppsUpdated());
}

TEST_F(Reset, LeavesNoResetRequested) {
    select();
    pane().resetFullscreenSettings(nullptr);
    EXPECT_FALSE(pane().deleteFullScreenSettingsInSorter());

    pane().setDeleteFullScreenSettingsInSorter(true);
    pane().resetFullscreenSettings(nullptr);

    EXPECT_FALSE(pane().deleteFullScreenSettingsInSorter());
}

TEST_F(Reset, MakesNoListWhereNoneWasLoaded) {
    select();

    pane().resetFullscreenSettings(nullptr);

    EXPECT_FALSE(pane().tableArray().exists());
}

} // namespace qbsp

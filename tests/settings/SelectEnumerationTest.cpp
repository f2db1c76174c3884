#include "Situations.h"

namespace qbsp {

namespace {

void checkControls(const Situation& s, SituatedPane& stage) {
    const bool startsAtLogin = s.sandboxed || s.hasRegistrar();
    const char* const title = s.buttonsSorterRuns() ? "Quit" : "Show";

    auto contents = stage.controlContents();
    EXPECT_EQ(contents["showAtLoginCheckbox"]["state"], int{startsAtLogin});
    EXPECT_EQ(contents["toggleLaunchButton"]["title"], title);
    EXPECT_EQ(contents["toggleLaunchButton"]["enabled"], true);
    EXPECT_EQ(contents["visibilityButton"]["state"], static_cast<int>(s.visibility));
    EXPECT_EQ(contents["clipHotKeyRecorder"]["delegate"], true);
    EXPECT_EQ(contents["noteHotKeyRecorder"]["delegate"], true);
}

void checkNothingWritten(const Situation& s, SituatedPane& stage, const Asked& asked) {
    for (const char* const write :
         {"NSUserDefaults set", "NSUserDefaults synchronize", "CFPreferencesSet", "CFPreferencesSynchronize",
          "NSDistributedNotificationCenter", "NSDictionary", "SMLoginItemSetEnabled", "registrar registerA",
          "registrar unregisterA"})
        EXPECT_FALSE(asked.has(write)) << write;
    EXPECT_EQ(stage.pane().shouldRestartSorter(), s.shouldRestart);
    EXPECT_EQ(stage.pane().deleteFullScreenSettingsInSorter(), s.deleteSettings);
    EXPECT_EQ(stage.pane().hideAppsUpdated(), s.hideAppsUpdated);
}

void checkSelect(const Situation& s, SituatedPane& stage) {
    stage.world.registered = true;
    stage.world.jobs = {{{"Label", embedded}, {"OnDemand", true}}};

    stage.pane().willSelect();

    const Asked asked(stage.operations());
    checkControls(s, stage);
    checkNothingWritten(s, stage, asked);
    EXPECT_EQ(stage.pane().tableArray().hideFlags(), SituatedPane::storedList(s.editionsSorter()));
    EXPECT_EQ(asked.has("SMCopyAllJobDictionaries"), s.sandboxed);
    EXPECT_EQ(asked.count("registrar "), s.hasRegistrar());
    EXPECT_EQ(asked.operations().back(), "NSPreferencePane willSelect()");
    EXPECT_EQ(stage.platform.preferences.openSuites(), 0U);
}

} // namespace

TEST(Enumeration, SelectKeepsItsRulesInEverySituation) {
    checkInAllSituations({Registrar::agrees, Registrar::empty, Registrar::absent}, CheckBoxes::together,
                         checkSelect);
}

} // namespace qbsp

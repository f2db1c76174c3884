#include "Situations.h"

namespace qbsp {

namespace {

const platform::Dictionary besideTheRegistrar{{"Beside the registrar", true}};
const platform::Dictionary besideTheHost{{"Beside the host", true}};

void putFactoryLists(SituatedPane& stage, const Situation& s) {
    const std::string file = std::string(s.pro ? "/Quarrybook Sorter.app" : "/Quarrybook Solo Sorter.app") +
                             "/Contents/Resources/FactoryDefaults.plist";
    stage.world.disk.putPropertyList("/PlugIn" + file, {{hideListKey, besideTheRegistrar}});
    stage.world.disk.putPropertyList("/Host" + file, {{hideListKey, besideTheHost}});
}

void checkReset(const Situation& s, SituatedPane& stage) {
    putFactoryLists(stage, s);
    const platform::Value factory = s.hasRegistrar() ? besideTheRegistrar : besideTheHost;

    stage.pane().resetFullscreenSettings(nullptr);

    const Asked asked(stage.operations());
    EXPECT_EQ(stage.hideList(full), factory) << "the full domain is written in both editions";
    EXPECT_EQ(stage.hideList(solo), SituatedPane::storedList(solo));
    EXPECT_EQ(stage.pane().tableArray().hideFlags(), s.pro ? factory : SituatedPane::storedList(solo));
    EXPECT_EQ(asked.posts("QBSSorterHideAppUpdated"), s.editionsSorterRuns());
    EXPECT_EQ(asked.count("QBApplicationIsRunning(\"" + std::string(s.editionsSorter())), 1);
    EXPECT_EQ(asked.count("QBApplicationIsRunning"), 1);
    EXPECT_EQ(asked.count("CFPreferencesSynchronize(\"" + std::string(s.editionsSorter())), 1);
    EXPECT_EQ(asked.count("hideAppsTable reloadData"), 2);
    EXPECT_FALSE(asked.has("NSApp"));
    EXPECT_FALSE(stage.pane().deleteFullScreenSettingsInSorter());
    EXPECT_EQ(stage.pane().shouldRestartSorter(), s.shouldRestart);
    EXPECT_EQ(stage.pane().hideAppsUpdated(), s.hideAppsUpdated);
    EXPECT_EQ(stage.platform.preferences.openSuites(), 0U);
}

} // namespace

TEST(Enumeration, ResetKeepsItsRulesInEverySituation) {
    checkInAllSituations({Registrar::agrees, Registrar::empty, Registrar::absent}, CheckBoxes::together,
                         checkReset);
}

} // namespace qbsp

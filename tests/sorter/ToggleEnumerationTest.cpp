#include "Situations.h"

namespace qbsp {

namespace {

void checkSorter(const Situation& s, const Asked& asked) {
    const bool stops = s.buttonsSorterRuns();
    const std::string item = std::string("SMLoginItemSetEnabled(\"") + embedded + "\", ";

    EXPECT_EQ(asked.count("registrar showSorterApplication"), s.hasRegistrar() && !stops);
    EXPECT_EQ(asked.count("registrar closeSorterApplication"), s.hasRegistrar() && stops);
    EXPECT_EQ(asked.count(item + "true"), s.sandboxed && !stops);
    EXPECT_EQ(asked.count(item + "false"), s.sandboxed)
        << "the job is on demand: it is always switched off first";
    EXPECT_EQ(asked.count("SMCopyAllJobDictionaries"), s.sandboxed && !stops);
    EXPECT_TRUE(asked.areInOrder({item + "false", item + "true"}));
    EXPECT_EQ(asked.count("NSApp isSandboxed"), s.sandboxed ? 1 : 2);
    EXPECT_FALSE(asked.has("NSWorkspace"));
}

void checkButton(const Situation& s, SituatedPane& stage, const Asked& asked) {
    auto button = stage.controlContents()["toggleLaunchButton"];
    EXPECT_EQ(button["enabled"], s.sandboxed);
    EXPECT_EQ(button["title"], "before") << "the title waits for the refresh";
    EXPECT_EQ(asked.count("attentionLabel setHidden:(true)"), 1);
    EXPECT_EQ(asked.operations().back(),
              R"(pane performSelector:withObject:afterDelay:("updateToggleButtonTitle", null, 0.75))");

    stage.wait("0.75");
    button = stage.controlContents()["toggleLaunchButton"];
    EXPECT_EQ(button["enabled"], true);
    EXPECT_EQ(button["title"], s.buttonsSorterRuns() ? "Quit" : "Show");
}

void checkFlags(const Situation& s, SituatedPane& stage, const Asked& asked) {
    const bool stops = s.buttonsSorterRuns();

    EXPECT_EQ(asked.count("CFPreferencesSetValue"), stops && s.deleteSettings);
    EXPECT_EQ(stage.pane().deleteFullScreenSettingsInSorter(), s.deleteSettings && !stops);
    EXPECT_EQ(stage.pane().shouldRestartSorter(), s.shouldRestart && (s.sandboxed || !stops));
    EXPECT_EQ(stage.pane().hideAppsUpdated(), s.hideAppsUpdated);
    EXPECT_EQ(asked.posts("QBSSorterHideAppUpdated"), stops && s.deleteSettings && s.editionsSorterRuns());
    EXPECT_EQ(asked.posts("QBSSorterPreferencesUpdated"), 0);
    EXPECT_FALSE(stage.pane().hasSandboxedSorterApp());
}

void checkToggle(const Situation& s, SituatedPane& stage) {
    stage.world.jobs = {{{"Label", embedded}, {"OnDemand", true}}};

    stage.pane().toggleSorterProcess(nullptr);

    const Asked asked(stage.operations());
    checkSorter(s, asked);
    checkButton(s, stage, asked);
    checkFlags(s, stage, asked);
    EXPECT_EQ(stage.controls().showAtLoginCheckbox->state(), s.login);
    EXPECT_EQ(stage.platform.preferences.openSuites(), 0U);
}

} // namespace

TEST(Enumeration, ToggleKeepsItsRulesInEverySituation) {
    checkInAllSituations({Registrar::agrees, Registrar::empty, Registrar::absent}, CheckBoxes::together,
                         checkToggle);
}

} // namespace qbsp

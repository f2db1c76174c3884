#include "Situations.h"

namespace qbsp {

namespace {

using platform::ButtonState;

ButtonState opposite(ButtonState state) {
    return state == ButtonState::on ? ButtonState::off : ButtonState::on;
}

void checkLoginItem(const Situation& s, SituatedPane& stage, const Asked& asked) {
    const bool wanted = !s.sandboxed && s.login != ButtonState::mixed;
    const bool refused = wanted && !(s.hasRegistrar() && s.registrar == Registrar::agrees);

    EXPECT_EQ(asked.count("registrar registerApplication:"), s.hasRegistrar() && s.login == ButtonState::on);
    EXPECT_EQ(asked.count("registrar unregisterApplication:"),
              s.hasRegistrar() && s.login == ButtonState::off);
    EXPECT_EQ(asked.count("NSAlert runModal"), refused);
    EXPECT_EQ(asked.count("NSAlert setMessageText:(\"Could not add"), refused && s.login == ButtonState::on);
    EXPECT_EQ(stage.controls().showAtLoginCheckbox->state(), refused ? opposite(s.login) : s.login);
}

void checkRestartNotice(const Situation& s, SituatedPane& stage, const Asked& asked) {
    const bool notified = s.shouldRestart && s.editionsSorterRuns();
    const bool visibility = s.visibility != ButtonState::on;
    const std::string name = "QBSSorterPreferencesUpdated\", \"Quarrybook\", {\"visibility\": ";

    EXPECT_EQ(asked.posts("QBSSorterPreferencesUpdated"), notified);
    EXPECT_EQ(asked.posts(name + (visibility ? "true}" : "false}")), notified);
    EXPECT_EQ(asked.count("NSUserDefaults synchronize"), notified);
    EXPECT_EQ(stage.pane().shouldRestartSorter(), s.shouldRestart && !notified);
    EXPECT_EQ(stage.controls().visibilityButton->state(), s.visibility);
}

void checkHideList(const Situation& s, SituatedPane& stage, const Asked& asked) {
    const auto list = SituatedPane::storedList(s.editionsSorter(), s.hideAppsUpdated);

    EXPECT_EQ(asked.posts("QBSSorterHideAppUpdated"), s.hideAppsUpdated && s.editionsSorterRuns());
    EXPECT_EQ(asked.has("CFPreferences"), s.hideAppsUpdated);
    EXPECT_EQ(platform::entry(stage.world.domains[s.editionsSorter()].seenByOthers(), hideListKey), list);
    EXPECT_EQ(stage.hideList(s.othersSorter()), SituatedPane::storedList(s.othersSorter()));
    EXPECT_FALSE(stage.pane().hideAppsUpdated());
}

void checkOrder(const Situation& s, const Asked& asked) {
    EXPECT_EQ(asked.operations().front(), "NSWorkspace removeObserver:()");
    EXPECT_EQ(asked.operations().back(), "NSPreferencePane willUnselect()");
    EXPECT_TRUE(
        asked.areInOrder({"NSWorkspace removeObserver:", "NSApp isSandboxed", "registrar ",
                          "NSAlert runModal", "showAtLoginCheckbox setState:", "NSUserDefaults synchronize",
                          "CFPreferencesAddSuite", "CFPreferencesSetAppValue", "CFPreferencesSynchronize",
                          "CFPreferencesRemoveSuite", "NSPreferencePane willUnselect"}));
    EXPECT_EQ(asked.count("QBApplicationIsRunning("), s.shouldRestart + s.hideAppsUpdated);
    EXPECT_FALSE(asked.has(std::string("QBApplicationIsRunning(\"") + embedded));
}

void checkDeselect(const Situation& s, SituatedPane& stage) {
    stage.pane().willUnselect();

    const Asked asked(stage.operations());
    checkLoginItem(s, stage, asked);
    checkRestartNotice(s, stage, asked);
    checkHideList(s, stage, asked);
    checkOrder(s, asked);
    EXPECT_EQ(stage.pane().deleteFullScreenSettingsInSorter(), s.deleteSettings);
    EXPECT_EQ(stage.platform.preferences.openSuites(), 0U);
}

} // namespace

TEST(Enumeration, DeselectKeepsItsRulesInEverySituation) {
    checkInAllSituations({Registrar::agrees, Registrar::refuses, Registrar::empty, Registrar::absent},
                         CheckBoxes::each, checkDeselect);
}

} // namespace qbsp

#include "PaneTest.h"

namespace qbsp {

class RestartNotice : public PaneTest {
protected:
    /// Shows the pane and changes a hot key. The host is sandboxed, so that the login item is left alone.
    void changeHotKey() {
        world.sandboxed = true;
        select();
        pane().shortcutRecorderKeyComboDidChange(*controls().noteHotKeyRecorder, {0x100000, 45});
        forget();
    }
};

TEST_F(RestartNotice, ReachesARunningSorterWhenThePaneIsLeft) {
    world.running.insert(full);
    changeHotKey();

    pane().willUnselect();

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> true
QBApplicationIsRunning("com.quarrybook.Sorter") -> true
NSUserDefaults synchronize() -> true
NSDistributedNotificationCenter postNotificationName:object:userInfo:options:("QBSSorterPreferencesUpdated", "Quarrybook", {"visibility": true}, 1)
NSPreferencePane willUnselect()
)");
    EXPECT_FALSE(pane().shouldRestartSorter());
}

TEST_F(RestartNotice, WaitsForADeselectThatFindsTheSorterRunning) {
    changeHotKey();

    pane().willUnselect();

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> true
QBApplicationIsRunning("com.quarrybook.Sorter") -> false
NSPreferencePane willUnselect()
)");
    EXPECT_TRUE(pane().shouldRestartSorter());

    world.running.insert(full);
    pane().willUnselect();

    EXPECT_NE(transcript().find("QBSSorterPreferencesUpdated"), std::string::npos);
    EXPECT_FALSE(pane().shouldRestartSorter());
}

TEST_F(RestartNotice, IsHeldBackWhenTheDefaultsCannotBeFlushed) {
    world.running.insert(full);
    world.synchronizes = false;
    changeHotKey();

    pane().willUnselect();

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> true
QBApplicationIsRunning("com.quarrybook.Sorter") -> true
NSUserDefaults synchronize() -> false
NSPreferencePane willUnselect()
)");
    EXPECT_TRUE(pane().shouldRestartSorter());
}

TEST_F(RestartNotice, IsNotSentTwice) {
    world.running.insert(full);
    changeHotKey();
    unselect();

    pane().willUnselect();

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> true
NSPreferencePane willUnselect()
)");
}

TEST_F(RestartNotice, SaysTheOppositeOfTheFullCheckBox) {
    world.running.insert(full);
    for (const auto& [state, visibility] :
         {std::pair{platform::ButtonState::on, "false"}, std::pair{platform::ButtonState::off, "true"},
          std::pair{platform::ButtonState::mixed, "true"}}) {
        changeHotKey();
        controls().visibilityButton->setState(state);

        pane().willUnselect();

        EXPECT_NE(transcript().find(std::string(R"({"visibility": )") + visibility + "}, 1)"),
                  std::string::npos);
    }
}

TEST_F(RestartNotice, CountsAMissingFullCheckBoxAsOff) {
    world.running.insert(full);
    world.disconnected = {"visibilityButton"};
    changeHotKey();

    pane().willUnselect();

    EXPECT_NE(transcript().find(R"({"visibility": true}, 1)"), std::string::npos);
}

TEST_F(RestartNotice, CarriesTheHostsProcessName) {
    world.running.insert(full);
    world.processName = "Quarrybook Beta";
    changeHotKey();

    pane().willUnselect();

    EXPECT_NE(transcript().find(R"(options:("QBSSorterPreferencesUpdated", "Quarrybook Beta", )"),
              std::string::npos);
}

TEST_F(RestartNotice, NeverAsksForTheEmbeddedSorter) {
    world.running.insert(embedded);
    changeHotKey();

    pane().willUnselect();

    EXPECT_EQ(transcript().find(embedded), std::string::npos);
    EXPECT_TRUE(pane().shouldRestartSorter());
}

TEST_F(RestartNotice, IsForTheSoloSorterInTheSoloEdition) {
    world.pro = false;
    world.running.insert(solo);
    changeHotKey();

    pane().willUnselect();

    EXPECT_FALSE(pane().shouldRestartSorter());
}

} // namespace qbsp

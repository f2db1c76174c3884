#include "Stage.h"
#include "Watched.h"

#include <gtest/gtest.h>

namespace qbsp {

/// A platform whose posts and log lines a test looks at.
struct WatchedPlatform : simulated::SimulatedPlatform {
    WatchedCenter notifications;
    WatchedLog log;
};

/// A pane whose flags are looked at while it asks the platform for something.
class FlagTiming : public testing::Test {
protected:
    FlagTiming() {
        world.domains[full].put(hideListKey, platform::Dictionary{{"Mail", false}});
        world.running.insert(full);
        watched = QBSPPreferencePane::initWithBundle(platform::servicesOf(platform), base);
        watched->controls.hideAppsTable = platform::Outlet<platform::TableView>(&table);
    }

    void TearDown() override {
        EXPECT_EQ(platform.preferences.openSuites(), 0U) << "a suite was added and not removed";
    }

    /// Shows the pane on its list and changes that and a hot key.
    void change() {
        watched->mainViewDidLoad();
        watched->willSelect();
        watched->tableViewSetObjectValueForTableColumnRow(table, true,
                                                          simulated::SimulatedColumn("2", record), 0);
        watched->enableAttentionLabel(nullptr);
    }

    WatchedPlatform platform;
    simulated::World& world = platform.world;
    WatchedCenter& center = platform.notifications;
    WatchedLog& log = platform.log;
    simulated::ControlRecord record{"column", platform.transcript};
    simulated::SimulatedPaneBase base{world, platform.transcript};
    WatchedTable table;
    WatchedRegistrar registrar;
    std::shared_ptr<QBSPPreferencePane> watched;
    int calls = 0;
};

TEST_F(FlagTiming, ClearsTheRestartOnlyOnceTheNoticeIsOut) {
    watched->mainViewDidLoad();
    watched->enableAttentionLabel(nullptr);
    center.posted = [&](std::string_view) {
        ++calls;
        EXPECT_TRUE(watched->shouldRestartSorter());
    };

    watched->willUnselect();

    EXPECT_EQ(calls, 1) << "one notice";
    EXPECT_FALSE(watched->shouldRestartSorter());
}

TEST_F(FlagTiming, ClearsTheChangeOfTheListOnlyOnceTheNoticeIsOut) {
    change();
    center.posted = [&](std::string_view) {
        ++calls;
        EXPECT_TRUE(watched->hideAppsUpdated());
    };

    watched->willUnselect();

    EXPECT_EQ(calls, 2) << "the notices of the hot key and of the list";
    EXPECT_FALSE(watched->hideAppsUpdated());
}

TEST_F(FlagTiming, RaisesTheRestartOnlyOnceAChangedHotKeyIsAnnounced) {
    watched->mainViewDidLoad();
    center.posted = [&](std::string_view) {
        ++calls;
        EXPECT_FALSE(watched->shouldRestartSorter());
    };

    watched->shortcutRecorderKeyComboDidChange(*watched->controls.noteHotKeyRecorder, {0, 45});

    EXPECT_EQ(calls, 1) << "one notice";
    EXPECT_TRUE(watched->shouldRestartSorter());
}

TEST_F(FlagTiming, MarksTheListAsChangedOnlyOnceAnAdditionIsShown) {
    watched->mainViewDidLoad();
    watched->willSelect();
    table.asked = [&] {
        ++calls;
        EXPECT_FALSE(watched->hideAppsUpdated());
    };

    watched->addHideApp(nullptr);
    platform.openPanels.endSheet(platform::NSOKButton, "/Applications/Player.app");

    EXPECT_EQ(calls, 3) << "reloaded, selected and scrolled";
    EXPECT_TRUE(watched->hideAppsUpdated());
}

TEST_F(FlagTiming, ClearsTheResetRequestOnlyOnceTheTableIsReloaded) {
    watched->mainViewDidLoad();
    center.posted = [](std::string_view) {
    };
    watched->setDeleteFullScreenSettingsInSorter(true);
    table.asked = [&] {
        ++calls;
        EXPECT_TRUE(watched->deleteFullScreenSettingsInSorter());
    };

    watched->deleteFullScreenSettings();

    EXPECT_EQ(calls, 1) << "reloaded once, since no list is stored";
    EXPECT_FALSE(watched->deleteFullScreenSettingsInSorter());
}

TEST_F(FlagTiming, NotifiesTheSorterOfAResetBeforeTheRowsAreRemoved) {
    watched->mainViewDidLoad();
    watched->willSelect();
    center.posted = [&](std::string_view) {
        ++calls;
        EXPECT_EQ(watched->numberOfRowsInTableView(table), 1);
    };

    watched->deleteFullScreenSettings();

    EXPECT_EQ(calls, 1) << "one notice";
    EXPECT_EQ(watched->numberOfRowsInTableView(table), 0);
}

TEST_F(FlagTiming, MarksTheListAsUnchangedBetweenTheTextsAndTheHeaders) {
    change();
    WatchedButton button;
    watched->controls.resetFullscreenSettingsButton = platform::Outlet<platform::Button>(&button);
    button.titled = [&] {
        ++calls;
        EXPECT_TRUE(watched->hideAppsUpdated());
    };
    table.asked = [&] {
        ++calls;
        EXPECT_FALSE(watched->hideAppsUpdated());
    };

    watched->mainViewDidLoad();

    EXPECT_EQ(calls, 3) << "the last title and two headers";
}

TEST_F(FlagTiming, ForgetsTheRestartOnlyOnceTheRegistrarWasAskedToStop) {
    watched->setLoginItemRegistrar(&registrar);
    watched->enableAttentionLabel(nullptr);
    registrar.closed = [&] {
        ++calls;
        EXPECT_TRUE(watched->shouldRestartSorter());
    };

    watched->closeSorterApplication();

    EXPECT_EQ(calls, 1) << "one request";
    EXPECT_FALSE(watched->shouldRestartSorter());
}

TEST_F(FlagTiming, KeepsTheLaunchedSorterBeforeItsErrorIsLogged) {
    world.sandboxed = true;
    world.launchError = "Slow.";
    log.logged = [&] {
        ++calls;
        EXPECT_TRUE(watched->hasSandboxedSorterApp());
    };

    watched->showSorterApplication();

    EXPECT_EQ(calls, 1) << "one line";
}

} // namespace qbsp

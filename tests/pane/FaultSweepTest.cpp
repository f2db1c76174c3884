#include "Invariants.h"
#include "pane/SharedSorterFolder.h"

namespace qbsp {

namespace {

/// A public operation of the pane: how to get there, and what to send.
struct Operation {
    const char* name;
    void (*prepare)(Stage& stage);
    void (*send)(Stage& stage);
};

void selectWithChanges(Stage& stage) {
    stage.select();
    stage.editRow(0, true);
    stage.pane().enableAttentionLabel(nullptr);
    stage.pane().setDeleteFullScreenSettingsInSorter(true);
    stage.world.alertAnswer = 1000;
}

void showPanel(Stage& stage) {
    selectWithChanges(stage);
    stage.pane().addHideApp(nullptr);
}

void click(Stage& stage) {
    selectWithChanges(stage);
    stage.pane().toggleSorterProcess(nullptr);
}

void start(Stage& stage) {
    selectWithChanges(stage);
    stage.pane().showSorterApplication();
}

void startForTheFirstTime(Stage& stage) {
    selectWithChanges(stage);
    stage.world.defaults.put("SorterTabIsInvisible", {});
}

constexpr Operation sweptOperations[] = {
    {"initialize", startForTheFirstTime,
     [](Stage& s) {
         s.session.initialize();
     }},
    {"mainViewDidLoad", [](Stage& s) { s.createPane(); },
     [](Stage& s) {
         s.session.loadView();
     }},
    {"willSelect", selectWithChanges,
     [](Stage& s) {
         s.pane().willSelect();
     }},
    {"willUnselect", selectWithChanges,
     [](Stage& s) {
         s.pane().willUnselect();
     }},
    {"toggleSorterProcess", selectWithChanges,
     [](Stage& s) {
         s.pane().toggleSorterProcess(nullptr);
     }},
    {"the delayed refresh", click,
     [](Stage& s) {
         s.wait("0.75");
     }},
    {"appDied", selectWithChanges,
     [](Stage& s) {
         s.pane().appDied({{{"NSApplicationBundleIdentifier", s.world.pro ? full : solo}}});
     }},
    {"showSorterApplication", selectWithChanges,
     [](Stage& s) {
         s.pane().showSorterApplication();
     }},
    {"closeSorterApplication", start,
     [](Stage& s) {
         s.pane().closeSorterApplication();
     }},
    {"appIsPresentInLoginItems", selectWithChanges,
     [](Stage& s) {
         std::ignore = s.pane().appIsPresentInLoginItems();
     }},
    {"showLoginItemEditFailureAlert", selectWithChanges,
     [](Stage& s) {
         s.pane().showLoginItemEditFailureAlert("message");
     }},
    {"the conflict check", selectWithChanges,
     [](Stage& s) {
         std::optional<std::string> reason;
         std::ignore = s.pane().shortcutRecorderIsKeyCodeAndFlagsTakenReason(*s.controls().clipHotKeyRecorder,
                                                                             45, 0x100000, &reason);
     }},
    {"a changed Copy Selection", selectWithChanges,
     [](Stage& s) {
         s.pane().shortcutRecorderKeyComboDidChange(*s.controls().clipHotKeyRecorder, {0, 9});
     }},
    {"a changed Take Note", selectWithChanges,
     [](Stage& s) {
         s.pane().shortcutRecorderKeyComboDidChange(*s.controls().noteHotKeyRecorder, {0, 9});
     }},
    {"loadHideAppData", selectWithChanges,
     [](Stage& s) {
         s.pane().loadHideAppData();
     }},
    {"addHideApp", selectWithChanges,
     [](Stage& s) {
         s.pane().addHideApp(nullptr);
     }},
    {"the end of the panel", showPanel,
     [](Stage& s) {
         s.platform.openPanels.endSheet(platform::NSOKButton, "/Applications/Mail.app");
     }},
    {"resetFullscreenSettings", selectWithChanges,
     [](Stage& s) {
         s.pane().resetFullscreenSettings(nullptr);
     }},
    {"sharedSorterFolder", selectWithChanges,
     [](Stage& s) {
         std::ignore = sharedSorterFolder(s.platform.files, s.platform.log);
     }},
};

/// A world in which everything works, something is stored everywhere, and every Sorter runs.
void fill(simulated::World& world) {
    world.defaults.put("SorterTabIsInvisible", true);
    world.defaults.put("Sorter.ClipHotKeyCode", 8);
    world.defaults.put("Sorter.ClipHotKeyModifiers", 0x100);
    world.defaults.put("Sorter.NoteHotKeyCode", 45);
    world.defaults.put("Sorter.NoteHotKeyModifiers", 0x100);
    for (const char* const sorter : {full, solo}) {
        world.domains[sorter].put(hideListKey, platform::Dictionary{{"apple", false}, {"Zebra", true}});
        world.domains[sorter].put("Position", 3.5);
    }
    world.running = {full, solo};
    world.jobs = {{{"Label", embedded}, {"OnDemand", true}}};
    world.disk.putPropertyList("/Applications/Mail.app/Contents/Info.plist",
                               {{"CFBundleExecutable", "Mail"}});
}

/// Sends the operation while its call of that number fails. False when there is no such call.
bool sweep(const Operation& operation, std::size_t number, bool sandboxed, bool pro) {
    Stage stage;
    fill(stage.world);
    stage.world.sandboxed = sandboxed;
    stage.world.pro = pro;
    operation.prepare(stage);
    stage.forget();
    stage.platform.transcript.failOperation(number);
    Invariants invariants(stage);

    operation.send(stage);

    invariants.check(Asked(stage.operations()));
    return stage.platform.transcript.hasFailed();
}

void sweep(const Operation& operation, bool sandboxed, bool pro) {
    std::size_t number = 1;
    while (sweep(operation, number, sandboxed, pro) && !testing::Test::HasFailure())
        ++number;
    EXPECT_GT(number, 1U) << "the operation asks the platform nothing";
    ASSERT_FALSE(testing::Test::HasFailure())
        << operation.name << ", call " << number << (sandboxed ? ", sandboxed" : ", ordinary")
        << (pro ? ", full" : ", solo");
}

} // namespace

TEST(FaultSweep, KeepsTheInvariantsWhicheverCallFails) {
    for (const Operation& operation : sweptOperations)
        for (const bool sandboxed : {false, true})
            for (const bool pro : {false, true})
                ASSERT_NO_FATAL_FAILURE(sweep(operation, sandboxed, pro));
}

TEST(FaultSweep, CreatesAPaneOrLogsWhyNotWhicheverCallFails) {
    for (const bool sandboxed : {false, true})
        for (std::size_t number = 1; number <= 6; ++number) {
            Stage stage;
            stage.world.sandboxed = sandboxed;
            stage.platform.transcript.failOperation(number);

            const bool created = stage.session.create();

            const Asked asked(stage.operations());
            EXPECT_EQ(created, asked.has("NSPreferencePane initWithBundle:() -> true"));
            EXPECT_TRUE(created || asked.has("NSLog(\"ERROR: Couldn't load SorterPrefPane plugin.\")"));
        }
}

TEST(FaultSweep, ReachesTheBaseClassWhicheverCallFails) {
    for (std::size_t number = 1; number <= 60; ++number) {
        Stage stage;
        fill(stage.world);
        stage.createPane();
        stage.platform.transcript.failOperation(number);

        stage.session.loadView();
        EXPECT_EQ(stage.operations().back(), "NSPreferencePane mainViewDidLoad()");
        stage.pane().willSelect();
        EXPECT_EQ(stage.operations().back(), "NSPreferencePane willSelect()");
        stage.pane().willUnselect();
        EXPECT_EQ(stage.operations().back(), "NSPreferencePane willUnselect()");
    }
}

} // namespace qbsp

#include "PaneTest.h"

namespace qbsp {

using Select = PaneTest;

TEST_F(Select, FillsTheControlsInThisOrder) {
    world.defaults.put("Sorter.ClipHotKeyCode", 8);
    world.defaults.put("Sorter.ClipHotKeyModifiers", 0x300);
    world.defaults.put("Sorter.NoteHotKeyCode", 45);
    world.defaults.put("Sorter.NoteHotKeyModifiers", 0x1800);
    storeHideList(full, platform::Dictionary{{"Mail", true}});
    loadView();

    pane().willSelect();

    EXPECT_EQ(transcript(), R"(
NSUserDefaults objectForKey:("Sorter.ClipHotKeyCode") -> 8
NSUserDefaults objectForKey:("Sorter.ClipHotKeyModifiers") -> 768
clipHotKeyRecorder setKeyCombo:({"code": 8, "flags": 1179648})
clipHotKeyRecorder setDelegate:()
NSUserDefaults objectForKey:("Sorter.NoteHotKeyCode") -> 45
NSUserDefaults objectForKey:("Sorter.NoteHotKeyModifiers") -> 6144
noteHotKeyRecorder setKeyCombo:({"code": 45, "flags": 786432})
noteHotKeyRecorder setDelegate:()
NSApp isSandboxed() -> false
registrar applicationIsRegistered:("/PlugIn/Quarrybook Sorter.app") -> false
showAtLoginCheckbox setState:(0)
NSApp isSandboxed() -> false
QBApplicationIsRunning("com.quarrybook.Sorter") -> false
NSBundle localizedStringForKey:value:table:("Show", "", null) -> "Show"
toggleLaunchButton setTitle:("Show")
toggleLaunchButton setEnabled:(true)
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
CFPreferencesCopyAppValue("UserSpecifiedFullScreenApplications", "com.quarrybook.Sorter") -> {"Mail": true}
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
hideAppsTable reloadData()
NSPreferencePane willSelect()
)");
}

TEST_F(Select, KeepsTheCombinationsShownWhenNoHotKeyIsStored) {
    loadView();
    controls().clipHotKeyRecorder->setKeyCombo({0x20000, 1});
    controls().noteHotKeyRecorder->setKeyCombo({0x40000, 2});

    pane().willSelect();

    EXPECT_EQ(shown("clipHotKeyRecorder", "code"), std::int64_t{1});
    EXPECT_EQ(shown("noteHotKeyRecorder", "code"), std::int64_t{2});
    EXPECT_EQ(shown("clipHotKeyRecorder", "delegate"), true);
    EXPECT_EQ(shown("noteHotKeyRecorder", "delegate"), true);
}

TEST_F(Select, AsksForNoModifiersOfAHotKeyThatIsNotStored) {
    world.defaults.put("Sorter.ClipHotKeyModifiers", 0x100);
    world.defaults.put("Sorter.NoteHotKeyModifiers", 0x100);
    loadView();

    pane().willSelect();

    const auto asked = operations();
    EXPECT_EQ(asked.at(0), R"(NSUserDefaults objectForKey:("Sorter.ClipHotKeyCode") -> null)");
    EXPECT_EQ(asked.at(1), "clipHotKeyRecorder setDelegate:()");
    EXPECT_EQ(asked.at(2), R"(NSUserDefaults objectForKey:("Sorter.NoteHotKeyCode") -> null)");
    EXPECT_EQ(asked.at(3), "noteHotKeyRecorder setDelegate:()");
}

TEST_F(Select, ShowsAStoredCodeWithoutModifiersAsThatKeyAlone) {
    world.defaults.put("Sorter.NoteHotKeyCode", 45);

    select();

    EXPECT_EQ(shown("noteHotKeyRecorder", "code"), std::int64_t{45});
    EXPECT_EQ(shown("noteHotKeyRecorder", "flags"), std::uint64_t{0});
}

TEST_F(Select, NarrowsAStoredCodeTo16Bits) {
    world.defaults.put("Sorter.ClipHotKeyCode", 65537);
    world.defaults.put("Sorter.NoteHotKeyCode", -1);

    select();

    EXPECT_EQ(shown("clipHotKeyRecorder", "code"), std::int64_t{1});
    EXPECT_EQ(shown("noteHotKeyRecorder", "code"), std::int64_t{-1});
}

TEST_F(Select, LoadsTheHiddenRecorderOfTheSandboxedHostToo) {
    world.sandboxed = true;
    world.defaults.put("Sorter.ClipHotKeyCode", 8);

    select();

    EXPECT_EQ(shown("clipHotKeyRecorder", "code"), std::int64_t{8});
    EXPECT_EQ(shown("clipHotKeyRecorder", "delegate"), true);
}

TEST_F(Select, ShowsARegisteredSorterAsOn) {
    world.registered = true;

    select();

    EXPECT_EQ(shown("showAtLoginCheckbox", "state"), 1);
}

TEST_F(Select, ShowsOffWithoutARegistrarWhateverTheLoginItemsHold) {
    world.loader = simulated::Loader::absent;
    world.registered = true;
    loadView();

    pane().willSelect();

    EXPECT_EQ(shown("showAtLoginCheckbox", "state"), 0);
    EXPECT_EQ(transcript().find("registrar"), std::string::npos);
}

TEST_F(Select, FollowsTheJobInTheSandboxedHostAlthoughTheBoxIsHidden) {
    world.sandboxed = true;
    world.jobs = {{{"Label", embedded}, {"OnDemand", true}}};

    select();

    EXPECT_EQ(shown("showAtLoginCheckbox", "state"), 1);
    EXPECT_EQ(shown("showAtLoginCheckbox", "hidden"), true);
}

TEST_F(Select, ClearsATickThatTheSystemDoesNotConfirm) {
    world.registered = true;
    select();
    world.registered = false;

    pane().willSelect();

    EXPECT_EQ(shown("showAtLoginCheckbox", "state"), 0);
}

TEST_F(Select, ShowsTheSameTheSecondTime) {
    world.defaults.put("Sorter.ClipHotKeyCode", 8);
    storeHideList(full, platform::Dictionary{{"Mail", true}, {"Player", false}});
    select();
    const auto first = session.view()->contents();

    pane().willSelect();

    EXPECT_EQ(session.view()->contents(), first);
}

TEST_F(Select, NeitherReadsNorChangesTheFlags) {
    storeHideList(full, platform::Dictionary{{"Mail", true}});
    select();
    editRow(0, false);
    pane().enableAttentionLabel(nullptr);
    pane().setDeleteFullScreenSettingsInSorter(true);

    pane().willSelect();

    EXPECT_TRUE(pane().hideAppsUpdated());
    EXPECT_TRUE(pane().shouldRestartSorter());
    EXPECT_TRUE(pane().deleteFullScreenSettingsInSorter());
}

TEST_F(Select, ShowsTheStoredListAgainAfterAnUnsavedEdit) {
    storeHideList(full, platform::Dictionary{{"Mail", true}});
    select();
    editRow(0, false);

    pane().willSelect();

    EXPECT_EQ(pane().tableArray().at(0).hideApp, true);
}

TEST_F(Select, WorksWithoutAView) {
    createPane();

    pane().willSelect();

    EXPECT_EQ(operations().back(), "NSPreferencePane willSelect()");
}

} // namespace qbsp

#include "PaneTest.h"

namespace qbsp {

using HotKeyChange = PaneTest;

TEST_F(HotKeyChange, IsStoredFlushedAndAnnounced) {
    select();

    pane().shortcutRecorderKeyComboDidChange(*controls().noteHotKeyRecorder, {0x1E0000, 45});

    EXPECT_EQ(transcript(), R"(
NSUserDefaults setObject:forKey:(45, "Sorter.NoteHotKeyCode")
NSUserDefaults setObject:forKey:(6912, "Sorter.NoteHotKeyModifiers")
NSUserDefaults synchronize() -> true
NSDistributedNotificationCenter postNotificationName:object:userInfo:options:("QBSSorterShortcutKeysChanged", "Quarrybook", null, 1)
)");
    EXPECT_TRUE(pane().shouldRestartSorter());
}

TEST_F(HotKeyChange, OfCopySelectionIsStoredUnderItsOwnKeys) {
    select();

    pane().shortcutRecorderKeyComboDidChange(*controls().clipHotKeyRecorder, {0x100000, 8});

    EXPECT_EQ(transcript(), R"(
NSUserDefaults setObject:forKey:(8, "Sorter.ClipHotKeyCode")
NSUserDefaults setObject:forKey:(256, "Sorter.ClipHotKeyModifiers")
NSApp isSandboxed() -> false
NSUserDefaults synchronize() -> true
NSDistributedNotificationCenter postNotificationName:object:userInfo:options:("QBSSorterShortcutKeysChanged", "Quarrybook", null, 1)
)");
}

TEST_F(HotKeyChange, OfCopySelectionIsMirroredInTheSandboxedHost) {
    world.sandboxed = true;
    world.disk.makeFolder("/Group/Sorter");
    select();

    pane().shortcutRecorderKeyComboDidChange(*controls().clipHotKeyRecorder, {0x100000, 8});

    EXPECT_EQ(transcript(), R"(
NSUserDefaults setObject:forKey:(8, "Sorter.ClipHotKeyCode")
NSUserDefaults setObject:forKey:(256, "Sorter.ClipHotKeyModifiers")
NSApp isSandboxed() -> true
NSFileManager containerURLForSecurityApplicationGroupIdentifier:("Z3K8WQ4N7P.quarry2") -> "/Group"
NSFileManager fileExistsAtPath:("/Group/Sorter") -> true
NSDictionary writeToURL:atomically:({"Sorter.ClipHotKeyCode": 8, "Sorter.ClipHotKeyModifiers": 256}, "/Group/Sorter/clipHotKey.dictionary", true) -> true
NSUserDefaults synchronize() -> true
NSDistributedNotificationCenter postNotificationName:object:userInfo:options:("QBSSorterShortcutKeysChanged", "Quarrybook", null, 1)
)");
}

TEST_F(HotKeyChange, RewritesTheMirrorWithBothEntriesInTheirKinds) {
    world.sandboxed = true;
    world.disk.putPropertyList("/Group/Sorter/clipHotKey.dictionary", {{"Old", true}});
    select();

    pane().shortcutRecorderKeyComboDidChange(*controls().clipHotKeyRecorder, {0x80000, 3});

    EXPECT_EQ(world.disk.propertyList("/Group/Sorter/clipHotKey.dictionary"),
              (platform::Dictionary{{"Sorter.ClipHotKeyCode", std::int32_t{3}},
                                    {"Sorter.ClipHotKeyModifiers", std::uint32_t{0x800}}}));
}

TEST_F(HotKeyChange, OfTakeNoteIsNeverMirrored) {
    world.sandboxed = true;
    world.disk.putPropertyList("/Group/Sorter/clipHotKey.dictionary", {{"Old", true}});
    select();

    pane().shortcutRecorderKeyComboDidChange(*controls().noteHotKeyRecorder, {0x80000, 3});

    EXPECT_EQ(world.disk.propertyList("/Group/Sorter/clipHotKey.dictionary"),
              (platform::Dictionary{{"Old", true}}));
    EXPECT_EQ(transcript(), R"(
NSUserDefaults setObject:forKey:(3, "Sorter.NoteHotKeyCode")
NSUserDefaults setObject:forKey:(2048, "Sorter.NoteHotKeyModifiers")
NSUserDefaults synchronize() -> true
NSDistributedNotificationCenter postNotificationName:object:userInfo:options:("QBSSorterShortcutKeysChanged", "Quarrybook", null, 1)
)");
}

TEST_F(HotKeyChange, IsKeptInTheDefaultsWithoutAContainerForTheMirror) {
    world.sandboxed = true;
    world.container = std::nullopt;
    select();

    pane().shortcutRecorderKeyComboDidChange(*controls().clipHotKeyRecorder, {0, 8});

    EXPECT_EQ(
        operations().at(4),
        R"(NSDictionary writeToURL:atomically:({"Sorter.ClipHotKeyCode": 8, "Sorter.ClipHotKeyModifiers": 0}, null, true) -> false)");
    EXPECT_EQ(world.defaults.value("Sorter.ClipHotKeyCode"), 8);
}

TEST_F(HotKeyChange, IsAnnouncedEvenWhenTheMirrorCannotBeWritten) {
    world.sandboxed = true;
    world.writes = false;
    world.folderError = "Full.";
    select();

    pane().shortcutRecorderKeyComboDidChange(*controls().clipHotKeyRecorder, {0, 8});

    const auto asked = operations();
    EXPECT_EQ(asked.at(6), R"(NSLog("ERROR: Full."))");
    EXPECT_NE(asked.back().find("QBSSorterShortcutKeysChanged"), std::string::npos);
}

TEST_F(HotKeyChange, IsAnnouncedEvenWhenTheDefaultsCannotBeFlushed) {
    world.synchronizes = false;
    select();

    pane().shortcutRecorderKeyComboDidChange(*controls().noteHotKeyRecorder, {0, 45});

    EXPECT_NE(operations().back().find("QBSSorterShortcutKeysChanged"), std::string::npos);
    EXPECT_EQ(world.defaults.value("Sorter.NoteHotKeyCode"), 45);
    EXPECT_TRUE(pane().shouldRestartSorter());
}

TEST_F(HotKeyChange, ToNothingIsStoredAndAnnouncedLikeAnyOther) {
    select();

    pane().shortcutRecorderKeyComboDidChange(*controls().noteHotKeyRecorder, platform::KeyCombo());

    EXPECT_EQ(transcript(), R"(
NSUserDefaults setObject:forKey:(-1, "Sorter.NoteHotKeyCode")
NSUserDefaults setObject:forKey:(0, "Sorter.NoteHotKeyModifiers")
NSUserDefaults synchronize() -> true
NSDistributedNotificationCenter postNotificationName:object:userInfo:options:("QBSSorterShortcutKeysChanged", "Quarrybook", null, 1)
)");
    EXPECT_TRUE(pane().shouldRestartSorter());
}

TEST_F(HotKeyChange, OfAnotherRecorderStoresNothingButIsAnnounced) {
    simulated::SimulatedRecorder other("other", platform.transcript);
    select();

    pane().shortcutRecorderKeyComboDidChange(other, {0x100000, 8});

    EXPECT_EQ(transcript(), R"(
NSUserDefaults synchronize() -> true
NSDistributedNotificationCenter postNotificationName:object:userInfo:options:("QBSSorterShortcutKeysChanged", "Quarrybook", null, 1)
)");
    EXPECT_TRUE(pane().shouldRestartSorter());
}

TEST_F(HotKeyChange, IsAnnouncedUnderTheHostsProcessName) {
    world.processName = "Quarrybook Beta";
    select();

    pane().shortcutRecorderKeyComboDidChange(*controls().noteHotKeyRecorder, {0, 45});

    EXPECT_NE(operations().back().find(R"(("QBSSorterShortcutKeysChanged", "Quarrybook Beta", null, 1))"),
              std::string::npos);
}

using AttentionLabel = PaneTest;

TEST_F(AttentionLabel, IsNotShownWhenTheRestartIsRemembered) {
    select();

    pane().enableAttentionLabel(nullptr);

    EXPECT_EQ(transcript(), nothing);
    EXPECT_EQ(shown("attentionLabel", "hidden"), true);
    EXPECT_TRUE(pane().shouldRestartSorter());
}

} // namespace qbsp

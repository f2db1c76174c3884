#include "PaneTest.h"

namespace qbsp {

class HotKeyConflict : public PaneTest {
protected:
    HotKeyConflict() { loadView(); }

    /// True when the pane refuses the combination to the recorder; stores its reason in `reason`.
    bool refuses(const platform::Outlet<platform::RecorderControl>& recorder, std::int64_t code,
                 platform::CocoaFlags flags) {
        return pane().shortcutRecorderIsKeyCodeAndFlagsTakenReason(*recorder, code, flags, &reason);
    }

    std::optional<std::string> reason;
};

TEST_F(HotKeyConflict, RefusesCopySelectionTheCombinationOfTakeNote) {
    world.defaults.put("Sorter.NoteHotKeyCode", 45);
    world.defaults.put("Sorter.NoteHotKeyModifiers", 0x900);

    EXPECT_TRUE(refuses(controls().clipHotKeyRecorder, 45, 0x180000));

    EXPECT_EQ(reason, "this combination is used for the `Take Note' hot key");
    EXPECT_EQ(transcript(), R"(
NSUserDefaults objectForKey:("Sorter.NoteHotKeyCode") -> 45
NSUserDefaults objectForKey:("Sorter.NoteHotKeyModifiers") -> 2304
NSBundle localizedStringForKey:value:table:("this combination is used for the `Take Note' hot key", "", null) -> "this combination is used for the `Take Note' hot key"
)");
}

TEST_F(HotKeyConflict, RefusesTakeNoteTheCombinationOfCopySelection) {
    world.defaults.put("Sorter.ClipHotKeyCode", 8);
    world.defaults.put("Sorter.ClipHotKeyModifiers", 0x1200);

    EXPECT_TRUE(refuses(controls().noteHotKeyRecorder, 8, 0x60000));

    EXPECT_EQ(reason, "this combination is used for the `Copy Selection' hot key");
    EXPECT_EQ(transcript(), R"(
NSUserDefaults objectForKey:("Sorter.ClipHotKeyCode") -> 8
NSUserDefaults objectForKey:("Sorter.ClipHotKeyModifiers") -> 4608
NSBundle localizedStringForKey:value:table:("this combination is used for the `Copy Selection' hot key", "", null) -> "this combination is used for the `Copy Selection' hot key"
)");
}

TEST_F(HotKeyConflict, AcceptsTheSameKeyWithOtherModifiers) {
    world.defaults.put("Sorter.NoteHotKeyCode", 45);
    world.defaults.put("Sorter.NoteHotKeyModifiers", 0x900);

    EXPECT_FALSE(refuses(controls().clipHotKeyRecorder, 45, 0x100000));

    EXPECT_EQ(reason, std::nullopt);
}

TEST_F(HotKeyConflict, AcceptsTheSameModifiersWithAnotherKeyAndReadsBothBefore) {
    world.defaults.put("Sorter.NoteHotKeyCode", 45);
    world.defaults.put("Sorter.NoteHotKeyModifiers", 0x900);

    EXPECT_FALSE(refuses(controls().clipHotKeyRecorder, 44, 0x180000));

    EXPECT_EQ(transcript(), R"(
NSUserDefaults objectForKey:("Sorter.NoteHotKeyCode") -> 45
NSUserDefaults objectForKey:("Sorter.NoteHotKeyModifiers") -> 2304
)");
}

TEST_F(HotKeyConflict, NeverComparesAHotKeyWithItself) {
    world.defaults.put("Sorter.ClipHotKeyCode", 8);
    world.defaults.put("Sorter.ClipHotKeyModifiers", 0x100);

    EXPECT_FALSE(refuses(controls().clipHotKeyRecorder, 8, 0x100000));
}

TEST_F(HotKeyConflict, TakesAHotKeyThatWasNeverStoredForKeyZeroWithoutModifiers) {
    EXPECT_TRUE(refuses(controls().clipHotKeyRecorder, 0, 0));
    EXPECT_TRUE(refuses(controls().noteHotKeyRecorder, 0, 0x10000));
    EXPECT_FALSE(refuses(controls().clipHotKeyRecorder, 1, 0));
    EXPECT_FALSE(refuses(controls().clipHotKeyRecorder, 0, 0x20000));
}

TEST_F(HotKeyConflict, ComparesAStoredCodeAfterNarrowing) {
    world.defaults.put("Sorter.NoteHotKeyCode", 65536);

    EXPECT_TRUE(refuses(controls().clipHotKeyRecorder, 0, 0));
}

TEST_F(HotKeyConflict, DoesNotNarrowTheOffer) {
    EXPECT_FALSE(refuses(controls().clipHotKeyRecorder, 65536, 0));
}

TEST_F(HotKeyConflict, SaysNothingThroughAMissingReason) {
    EXPECT_TRUE(
        pane().shortcutRecorderIsKeyCodeAndFlagsTakenReason(*controls().clipHotKeyRecorder, 0, 0, nullptr));

    EXPECT_EQ(transcript(), R"(
NSUserDefaults objectForKey:("Sorter.NoteHotKeyCode") -> null
NSUserDefaults objectForKey:("Sorter.NoteHotKeyModifiers") -> null
)");
}

TEST_F(HotKeyConflict, AcceptsEverythingOfAnotherRecorderAndReadsNothing) {
    simulated::SimulatedRecorder other("other", platform.transcript);
    reason = "left alone";

    EXPECT_FALSE(pane().shortcutRecorderIsKeyCodeAndFlagsTakenReason(other, 0, 0, &reason));

    EXPECT_EQ(reason, "left alone");
    EXPECT_EQ(transcript(), nothing);
}

using UnconnectedRecorders = PaneTest;

TEST_F(UnconnectedRecorders, AreNeitherOfTheTwo) {
    world.disconnected = {"clipHotKeyRecorder", "noteHotKeyRecorder"};
    loadView();

    EXPECT_FALSE(
        pane().shortcutRecorderIsKeyCodeAndFlagsTakenReason(*controls().clipHotKeyRecorder, 0, 0, nullptr));
    pane().shortcutRecorderKeyComboDidChange(*controls().clipHotKeyRecorder, {0, 8});

    EXPECT_EQ(world.defaults.value("Sorter.ClipHotKeyCode"), platform::Value());
}

} // namespace qbsp

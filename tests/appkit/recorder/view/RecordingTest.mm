#include "EventPump.h"
#include "RecorderViewFixture.h"

#include <filesystem>
#include <iterator>

namespace qbsp::recorder {

namespace {

constexpr VirtualKey keyF5 = 96;
const KeyCombo empty{};
const KeyCombo controlC{.flags = modifiers::control, .code = keyC};

/// Those modifiers as keys of a keyboard: "ctrl+alt+".
std::string keysOf(CocoaFlags flags) {
    std::string keys;
    keys += (flags & modifiers::control) != 0 ? "ctrl+" : "";
    keys += (flags & modifiers::option) != 0 ? "alt+" : "";
    keys += (flags & modifiers::shift) != 0 ? "shift+" : "";
    keys += (flags & modifiers::command) != 0 ? "super+" : "";
    return keys;
}

auto openDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

} // namespace

TEST_F(RecorderView, OffersACombinationWithCommandOptionOrControlToTheDelegate) {
    for (const CocoaFlags flags : {modifiers::command, modifiers::option, modifiers::control}) {
        armFirst();
        press(keysOf(flags) + "c");
        ASSERT_FALSE(delegateCalls.offered.empty());
        EXPECT_EQ(delegateCalls.offered.back(), (KeyCombo{.flags = flags, .code = keyC}));
    }
}

TEST_F(RecorderView, OffersAFunctionKeyAloneToTheDelegate) {
    armFirst();

    press("F5");

    EXPECT_EQ(delegateCalls.offered, (std::vector{KeyCombo{.flags = 0, .code = keyF5}}));
}

TEST_F(RecorderView, RecordsEverySetOfModifiers) {
    for (CocoaFlags set = 0; set < 16; ++set) {
        const CocoaFlags flags = set << 17;
        const bool functionKeyOnly = (flags & ~modifiers::shift) == 0;
        [first setKeyCode:-1 flags:0];
        armFirst();
        press(keysOf(flags) + (functionKeyOnly ? "F5" : "c"));
        EXPECT_EQ(comboOf(first), (KeyCombo{.flags = flags, .code = functionKeyOnly ? keyF5 : keyC}))
            << keysOf(flags);
    }
}

TEST_F(RecorderView, TreatsTheModifierKeysOnBothSidesOfTheKeyboardAlike) {
    constexpr std::pair<const char*, CocoaFlags> sides[] = {{"Control_R+c", modifiers::control},
                                                            {"Alt_R+c", modifiers::option},
                                                            {"Super_R+c", modifiers::command},
                                                            {"Super_L+c", modifiers::command}};
    for (const auto& [keys, flags] : sides) {
        [first setKeyCode:-1 flags:0];
        armFirst();
        press(keys);
        EXPECT_EQ(comboOf(first), (KeyCombo{.flags = flags, .code = keyC})) << keys;
    }
}

TEST_F(RecorderView, RefusesATakenCombinationWithAReasonKeepsTheOldOneAndStillListens) {
    delegateCalls.taken = controlC;
    [first setKeyCode:keyA flags:modifiers::command];
    armFirst();

    press("ctrl+c");

    EXPECT_EQ(reason(), "This combination is used elsewhere.");
    EXPECT_EQ(comboOf(first), commandA);
    EXPECT_TRUE([first isListening]);
    EXPECT_TRUE(delegateCalls.reported.empty());
}

TEST_F(RecorderView, ShowsTheReasonUntilTheNextKey) {
    delegateCalls.taken = controlC;
    armFirst();
    press("ctrl+c");

    press("ctrl+a");

    EXPECT_EQ(reason(), "");
    EXPECT_EQ(comboOf(first), (KeyCombo{.flags = modifiers::control, .code = keyA}));
}

TEST_F(RecorderView, ShowsAnAcceptedCombinationInTheWordsOfAPCsKeyboardAndReportsItOnce) {
    armFirst();

    press("ctrl+shift+c");

    const KeyCombo combo{.flags = modifiers::control | modifiers::shift, .code = keyC};
    EXPECT_EQ(text([first stringValue]), "Ctrl+Shift+C");
    EXPECT_EQ(delegateCalls.reported, std::vector{combo});
    EXPECT_FALSE([first isListening]);
}

TEST_F(RecorderView, ShowsTheModifiersThatAreHeldWhileItListens) {
    const auto shows = [this](const std::string& expected) {
        std::string seen;
        std::ignore = waitUntil([&] { return (seen = text([first stringValue])) == expected; });
        return seen == expected ? testing::AssertionSuccess() : testing::AssertionFailure() << seen;
    };
    armFirst();

    ASSERT_TRUE(run({"xdotool", "keydown", "ctrl"}));
    EXPECT_TRUE(shows("Ctrl+…"));
    ASSERT_TRUE(run({"xdotool", "keydown", "Super_R"}));
    EXPECT_TRUE(shows("Ctrl+Super+…"));
    EXPECT_EQ(text([first accessibilityValue]), "Control Super …");
    ASSERT_TRUE(run({"xdotool", "keyup", "ctrl"}));
    EXPECT_TRUE(shows("Super+…"));
    ASSERT_TRUE(run({"xdotool", "keyup", "Super_R"}));
    EXPECT_TRUE(shows("Type shortcut"));
}

TEST_F(RecorderView, DoesNotReportTheCombinationItAlreadyHolds) {
    [first setKeyCode:keyC flags:modifiers::control];
    armFirst();

    press("ctrl+c");

    EXPECT_TRUE(delegateCalls.reported.empty());
    EXPECT_FALSE([first isListening]);
}

TEST_F(RecorderView, DeleteAndBackspaceClearItAndReportTheEmptyCombination) {
    for (const char* key : {"Delete", "BackSpace"}) {
        [first setKeyCode:keyA flags:modifiers::command];
        armFirst();
        press(key);
        EXPECT_EQ(comboOf(first), empty);
        ASSERT_FALSE(delegateCalls.reported.empty());
        EXPECT_EQ(delegateCalls.reported.back(), empty);
        EXPECT_FALSE([first isListening]);
    }
    EXPECT_EQ(delegateCalls.reported.size(), 2U) << "each key should have been reported once";
}

TEST_F(RecorderView, BringsBackAtCommandZWhatTheClearButtonRemoved) {
    [first setKeyCode:keyA flags:modifiers::command];
    clickClearButton(first);
    [[first window] makeFirstResponder:first];

    press("super+z");

    EXPECT_EQ(comboOf(first), commandA);
    EXPECT_EQ(delegateCalls.reported, (std::vector{empty, commandA}));
    EXPECT_FALSE([first isListening]);
}

TEST_F(RecorderView, TheClearButtonClearsItAndReportsTheEmptyCombination) {
    [first setKeyCode:keyA flags:modifiers::command];

    clickClearButton(first);

    EXPECT_EQ(comboOf(first), empty);
    EXPECT_EQ(delegateCalls.reported, std::vector{empty});
    EXPECT_FALSE([first isListening]);
}

TEST_F(RecorderView, TheClearButtonEndsListeningToo) {
    [first setKeyCode:keyA flags:modifiers::command];
    armFirst();

    clickClearButton(first);

    EXPECT_FALSE([first isListening]);
    EXPECT_EQ(delegateCalls.reported, std::vector{empty});
}

TEST_F(RecorderView, AnEmptyRecorderHasNoClearButton) {
    clickClearButton(first);

    EXPECT_TRUE([first isListening]);
    EXPECT_TRUE(delegateCalls.reported.empty());
}

TEST_F(RecorderView, RefusesALetterWithShiftAloneAndSaysWhy) {
    armFirst();

    press("shift+c");

    EXPECT_EQ(reason(), "Shift alone is not enough: hold Ctrl, Alt or Super as well.");
    EXPECT_TRUE(delegateCalls.offered.empty());
    EXPECT_TRUE([first isListening]);
}

TEST_F(RecorderView, RefusesAPlainLetterAndSaysWhy) {
    armFirst();

    press("c");

    EXPECT_EQ(reason(), "Hold Ctrl, Alt or Super together with this key.");
    EXPECT_TRUE(delegateCalls.offered.empty());
    EXPECT_TRUE([first isListening]);
}

TEST_F(RecorderView, RefusesAKeyThatTheMacDoesNotHaveAndSaysWhy) {
    armFirst();

    press("ctrl+Print");

    EXPECT_EQ(reason(), "This key cannot be part of a shortcut.");
}

TEST_F(RecorderView, DoesNotReportACombinationSetByTheProgram) {
    [first setKeyCode:keyC flags:modifiers::control];

    EXPECT_EQ(text([first stringValue]), "Ctrl+C");
    EXPECT_TRUE(delegateCalls.reported.empty());
}

TEST_F(RecorderView, TreatsKeyCodeZeroLikeAnyOther) {
    armFirst();

    press("super+a");

    EXPECT_EQ(text([first stringValue]), "Super+A");
    EXPECT_EQ(delegateCalls.reported, std::vector{commandA});
}

TEST_F(RecorderView, DoesNotTakeTheRepetitionsOfAKeyForFurtherKeys) {
    delegateCalls.taken = controlC;
    armFirst();

    window->keyDowns = 0;
    ASSERT_TRUE(run({"xdotool", "keydown", "ctrl", "keydown", "c"}));
    EXPECT_TRUE(waitUntil([&] { return window->keyDowns > 3; }))
        << "the key that is held down should repeat; the window saw it " << window->keyDowns << " times";
    ASSERT_TRUE(run({"xdotool", "keyup", "c", "keyup", "ctrl"}));

    EXPECT_EQ(delegateCalls.offered.size(), 1U) << "the key should have been offered once, when it went down";
}

TEST_F(RecorderView, IsSentNoReleaseBetweenTheRepetitionsOfAHeldKey) {
    focus(first);

    EXPECT_TRUE(isSentNoReleaseOfHeldKeys());
}

TEST_F(RecorderView, ConnectsToNoKeyboardBeforeItIsUsed) {
    const auto before = openDescriptors();

    const auto view = appkit::Retained<QBSPRecorderView*>::adopt(
        [[QBSPRecorderView alloc] initWithFrame:NSMakeRect(0, 0, 200, 26)]);
    [[window contentView] addSubview:view.get()];
    [window display];
    [view.get() removeFromSuperview];

    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(RecorderView, WorksWithoutADelegate) {
    [first setDelegate:nil];
    armFirst();

    press("ctrl+c");

    EXPECT_EQ(comboOf(first), controlC);
}

TEST_F(RecorderView, AScreenReaderGetsRoleLabelAndValueInWords) {
    [first setAccessibilityLabel:@"Take Note Hotkey"];
    [first setKeyCode:keyC flags:modifiers::command | modifiers::shift];

    EXPECT_EQ(text([first accessibilityRole]), text(NSAccessibilityButtonRole));
    EXPECT_EQ(text([first accessibilityRoleDescription]), "shortcut recorder");
    EXPECT_EQ(text([first accessibilityLabel]), "Take Note Hotkey");
    EXPECT_EQ(text([first accessibilityValue]), "Shift Super C");
}

TEST_F(RecorderView, AScreenReaderGetsTheTextsOfAnEmptyAndOfAListeningRecorder) {
    EXPECT_EQ(text([first accessibilityValue]), "No shortcut");

    armFirst();

    EXPECT_EQ(text([first accessibilityValue]), "Type shortcut");
}

TEST_F(RecorderView, TheToolTipAndAScreenReadersHelpAreTheReasonWhileThereIsOne) {
    [first setToolTip:@"Click, then press the keys."];
    armFirst();

    press("c");
    EXPECT_NE(reason(), "");
    EXPECT_EQ(text([first toolTip]), reason());
    EXPECT_EQ(text([first accessibilityHelp]), reason());
    EXPECT_EQ(text([second accessibilityHelp]), "");

    press("Escape");
    EXPECT_EQ(text([first accessibilityHelp]), "Click, then press the keys.");
}

TEST_F(RecorderView, TheReasonStandsInTheRecordersOwnField) {
    armFirst();

    press("c");

    EXPECT_NE(reason(), "");
    EXPECT_EQ(text([window->secondReasonField stringValue]), "");
}

TEST_F(RecorderView, SaysThatItsCombinationIsInUseElsewhereUntilItChanges) {
    delegateCalls.taken = commandA;
    [first setKeyCode:keyA flags:modifiers::command];
    EXPECT_EQ(reason(), "");

    [first reviewCombination];
    EXPECT_EQ(reason(), "This combination is used elsewhere.");

    armFirst();
    press("c");
    EXPECT_EQ(reason(), "Hold Ctrl, Alt or Super together with this key.");
    press("Escape");
    EXPECT_EQ(reason(), "This combination is used elsewhere.");

    [first accessibilityPerformDelete];
    EXPECT_EQ(reason(), "");
}

} // namespace qbsp::recorder

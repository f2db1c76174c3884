#include "appkit/recorder/KeyComboText.h"

#include <gtest/gtest.h>

namespace qbsp::recorder {

namespace {

std::string noLabel(VirtualKey) {
    return {};
}

std::string frenchLabel(VirtualKey key) {
    return key == 12 ? "A" : "";
}

constexpr CocoaFlags commandShift = modifiers::command | modifiers::shift;

std::string inSymbols(const KeyCombo& combo, const LayoutLabel& layoutLabel = noLabel) {
    return comboText(combo, macSymbols(), layoutLabel);
}

std::string inMacWords(const KeyCombo& combo, const LayoutLabel& layoutLabel = noLabel) {
    return comboText(
        combo, macWords({.control = "Control", .option = "Option", .shift = "Shift", .command = "Command"}),
        layoutLabel);
}

Notation ofPC(std::string_view joint = "+") {
    return pcWords({.control = "Ctrl", .option = "Alt", .shift = "Shift", .command = "Super"}, joint);
}

std::string onPC(const KeyCombo& combo) {
    return comboText(combo, ofPC(), noLabel);
}

} // namespace

TEST(KeyComboText, ShowsModifiersInTheOrderOfTheMenus) {
    EXPECT_EQ(inSymbols({.flags = modifiers::all, .code = 8}), "⌃⌥⇧⌘C");
}

TEST(KeyComboText, ReadsModifiersOutInWords) {
    EXPECT_EQ(inMacWords({.flags = commandShift, .code = 8}), "Command Shift C");
    EXPECT_EQ(inMacWords({.flags = modifiers::all, .code = 8}), "Command Option Control Shift C");
}

TEST(KeyComboText, ShowsTheWordsOfAPCsKeyboardInTheirUsualOrder) {
    EXPECT_EQ(onPC({.flags = modifiers::all, .code = 8}), "Ctrl+Alt+Shift+Super+C");
    EXPECT_EQ(onPC({.flags = modifiers::command, .code = 45}), "Super+N");
    EXPECT_EQ(onPC({.flags = 0, .code = 96}), "F5");
}

TEST(KeyComboText, NamesKeysAsAPCsKeyboardDoes) {
    EXPECT_EQ(onPC({.flags = modifiers::control, .code = 51}), "Ctrl+Backspace");
    EXPECT_EQ(onPC({.flags = modifiers::control, .code = 117}), "Ctrl+Delete");
    EXPECT_EQ(onPC({.flags = modifiers::control, .code = 123}), "Ctrl+Left");
    EXPECT_EQ(onPC({.flags = modifiers::control, .code = 36}), "Ctrl+Return");
    EXPECT_EQ(onPC({.flags = modifiers::control, .code = 87}), "Ctrl+Keypad 5");
}

TEST(KeyComboText, ReadsAPCsKeysOutWithoutSigns) {
    EXPECT_EQ(comboText({.flags = commandShift, .code = 8}, ofPC(" "), noLabel), "Shift Super C");
}

TEST(KeyComboText, ShowsThatModifiersWaitForAKey) {
    EXPECT_EQ(heldText(modifiers::control | modifiers::option, macSymbols()), "⌃⌥…");
    EXPECT_EQ(heldText(modifiers::control | modifiers::option, ofPC()), "Ctrl+Alt+…");
}

TEST(KeyComboText, ShowsNothingForTheEmptyCombination) {
    EXPECT_EQ(inSymbols({}), "");
    EXPECT_EQ(inMacWords({}), "");
}

TEST(KeyComboText, ShowsKeyCodeZero) {
    EXPECT_EQ(inSymbols({.flags = 0, .code = 0}), "A");
}

TEST(KeyComboText, FollowsTheKeyboardLayout) {
    const KeyCombo combo{.flags = modifiers::control, .code = 12};

    EXPECT_EQ(inSymbols(combo, frenchLabel), "⌃A");
    EXPECT_EQ(inMacWords(combo, frenchLabel), "Control A");
}

TEST(KeyComboText, TakesTheAmericanLabelWhereTheLayoutHasNone) {
    EXPECT_EQ(inSymbols({.flags = modifiers::control, .code = 12}), "⌃Q");
}

TEST(KeyComboText, NamesKeysThatPrintNothing) {
    EXPECT_EQ(inSymbols({.flags = modifiers::command, .code = 36}), "⌘↩");
    EXPECT_EQ(inMacWords({.flags = modifiers::command, .code = 36}), "Command Return");
    EXPECT_EQ(inSymbols({.flags = 0, .code = 122}), "F1");
    EXPECT_EQ(inMacWords({.flags = modifiers::option, .code = 116}), "Option Page Up");
}

TEST(KeyComboText, DistinguishesTheKeypadFromTheRowOfDigits) {
    EXPECT_EQ(inSymbols({.flags = modifiers::command, .code = 87}), "⌘Keypad 5");
    EXPECT_EQ(inSymbols({.flags = modifiers::command, .code = 23}), "⌘5");
}

TEST(KeyComboText, ShowsTheNumberOfAnUnknownKey) {
    EXPECT_EQ(inSymbols({.flags = modifiers::command, .code = 500}), "⌘Key 500");
}

} // namespace qbsp::recorder

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

} // namespace

TEST(KeyComboText, ShowsModifiersInTheOrderOfTheMenus) {
    EXPECT_EQ(comboInSymbols({.flags = modifiers::all, .code = 8}, noLabel), "⌃⌥⇧⌘C");
}

TEST(KeyComboText, ReadsModifiersOutInWords) {
    EXPECT_EQ(comboInWords({.flags = commandShift, .code = 8}, noLabel), "Command Shift C");
    EXPECT_EQ(comboInWords({.flags = modifiers::all, .code = 8}, noLabel), "Command Option Control Shift C");
}

TEST(KeyComboText, ShowsNothingForTheEmptyCombination) {
    EXPECT_EQ(comboInSymbols({}, noLabel), "");
    EXPECT_EQ(comboInWords({}, noLabel), "");
}

TEST(KeyComboText, ShowsKeyCodeZero) {
    EXPECT_EQ(comboInSymbols({.flags = 0, .code = 0}, noLabel), "A");
}

TEST(KeyComboText, FollowsTheKeyboardLayout) {
    const KeyCombo combo{.flags = modifiers::control, .code = 12};

    EXPECT_EQ(comboInSymbols(combo, frenchLabel), "⌃A");
    EXPECT_EQ(comboInWords(combo, frenchLabel), "Control A");
}

TEST(KeyComboText, TakesTheAmericanLabelWhereTheLayoutHasNone) {
    EXPECT_EQ(comboInSymbols({.flags = modifiers::control, .code = 12}, noLabel), "⌃Q");
}

TEST(KeyComboText, NamesKeysThatPrintNothing) {
    EXPECT_EQ(comboInSymbols({.flags = modifiers::command, .code = 36}, noLabel), "⌘↩");
    EXPECT_EQ(comboInWords({.flags = modifiers::command, .code = 36}, noLabel), "Command Return");
    EXPECT_EQ(comboInSymbols({.flags = 0, .code = 122}, noLabel), "F1");
    EXPECT_EQ(comboInWords({.flags = modifiers::option, .code = 116}, noLabel), "Option Page Up");
}

TEST(KeyComboText, DistinguishesTheKeypadFromTheRowOfDigits) {
    EXPECT_EQ(comboInSymbols({.flags = modifiers::command, .code = 87}, noLabel), "⌘Keypad 5");
    EXPECT_EQ(comboInSymbols({.flags = modifiers::command, .code = 23}, noLabel), "⌘5");
}

TEST(KeyComboText, ShowsTheNumberOfAnUnknownKey) {
    EXPECT_EQ(comboInSymbols({.flags = modifiers::command, .code = 500}, noLabel), "⌘Key 500");
}

} // namespace qbsp::recorder

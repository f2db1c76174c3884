#include "RecordingListener.h"
#include "appkit/recorder/KeyComboText.h"
#include "appkit/recorder/gnustep/X11KeyCodes.h"
#include "hotkeys/StoredHotKey.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>

namespace qbsp::recorder {

namespace {

constexpr VirtualKey lastKey = 127;

/// A combination as the settings hold it.
struct StoredCombo {
    platform::Value code;
    platform::Value modifiers;
};

StoredCombo stored(const KeyCombo& combo) {
    return {.code = storedCode(combo), .modifiers = storedModifiers(combo)};
}

KeyCombo loaded(const StoredCombo& combo) {
    return StoredHotKey::read(combo.code, combo.modifiers).keyCombo();
}

std::string shown(const KeyCombo& combo, const Notation& notation = macSymbols()) {
    return comboText(combo, notation, [](VirtualKey) { return std::string(); });
}

/// Every key with every set of modifiers.
template <class Check>
void forEachCombo(Check check) {
    for (VirtualKey key = 0; key <= lastKey; ++key)
        for (CocoaFlags set = 0; set < 16; ++set)
            check(KeyCombo{.flags = set << 17, .code = key});
}

/// True for combinations that a recorder does not record: they type, move on, cancel or clear.
bool isNoHotKey(const KeyCombo& combo) {
    return (combo.flags & ~modifiers::shift) == 0 && !isFunctionKey(combo.code);
}

/// What a new recorder holds after that combination was pressed.
KeyCombo recorded(const KeyCombo& combo) {
    RecordingListener listener;
    RecorderLogic logic(listener);
    logic.arm();
    std::ignore = logic.keyPressed({.key = combo.code, .flags = combo.flags});
    return logic.combo();
}

} // namespace

TEST(StoredForm, EveryHotKeyIsRecordedStoredLoadedAndShownTheSame) {
    forEachCombo([](const KeyCombo& combo) {
        if (isNoHotKey(combo))
            return;
        ASSERT_EQ(recorded(combo), combo) << shown(combo);
        ASSERT_EQ(loaded(stored(recorded(combo))), combo) << shown(combo);
        ASSERT_EQ(shown(loaded(stored(combo))), shown(combo));
    });
}

TEST(StoredForm, WhatIsNoHotKeyIsNotRecorded) {
    forEachCombo([](const KeyCombo& combo) {
        if (isNoHotKey(combo)) {
            ASSERT_EQ(recorded(combo), KeyCombo{}) << shown(combo);
        }
    });
}

TEST(StoredForm, EveryCombinationIsShownByTheProgramAsItWasStored) {
    RecordingListener listener;
    RecorderLogic logic(listener);
    forEachCombo([&logic](const KeyCombo& combo) {
        logic.setCombo(loaded(stored(combo)));
        ASSERT_EQ(logic.combo(), combo) << shown(combo);
    });
    EXPECT_TRUE(listener.reported.empty());
}

TEST(StoredForm, NoTwoCombinationsLookTheSame) {
    const ModifierNames ofMac{
        .control = "Control", .option = "Option", .shift = "Shift", .command = "Command"};
    const ModifierNames ofPC{.control = "Ctrl", .option = "Alt", .shift = "Shift", .command = "Super"};
    for (const Notation& notation : {macSymbols(), macWords(ofMac), pcWords(ofPC), pcWords(ofPC, " ")}) {
        std::set<std::string> texts;
        forEachCombo([&](const KeyCombo& combo) {
            ASSERT_TRUE(texts.insert(shown(combo, notation)).second) << shown(combo, notation);
        });
    }
}

TEST(StoredForm, TheEmptyCombinationIsLoadedEmpty) {
    EXPECT_EQ(loaded(stored(KeyCombo{})), KeyCombo{});
}

} // namespace qbsp::recorder

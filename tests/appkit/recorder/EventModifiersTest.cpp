#include "appkit/recorder/gnustep/EventModifiers.h"

#include <gtest/gtest.h>

namespace qbsp::recorder {

namespace {

constexpr CocoaFlags shiftBit = 0x20000;
constexpr CocoaFlags controlBit = 0x40000;
constexpr CocoaFlags optionBit = 0x80000;
constexpr CocoaFlags commandBit = 0x100000;
constexpr CocoaFlags helpBit = 0x400000;
constexpr CocoaFlags capsLockBit = 0x10000;

} // namespace

TEST(EventModifiers, KnowWhatGnustepsBitsMeanOutOfTheBox) {
    const EventModifiers held;

    EXPECT_EQ(held.held(shiftBit), modifiers::shift);
    EXPECT_EQ(held.held(controlBit), modifiers::control);
    EXPECT_EQ(held.held(commandBit), modifiers::option) << "the left Alt";
    EXPECT_EQ(held.held(optionBit), modifiers::option) << "the right Alt";
    EXPECT_EQ(held.held(helpBit), modifiers::command) << "the left Super";
    EXPECT_EQ(held.held(shiftBit | controlBit | commandBit | helpBit), modifiers::all);
}

TEST(EventModifiers, IgnoreCapsLock) {
    EXPECT_EQ(EventModifiers().held(capsLockBit | controlBit), modifiers::control);
}

TEST(EventModifiers, LearnFromTheKeyThatSwitchedABitOn) {
    EventModifiers held;

    held.flagsChanged(modifiers::command, commandBit);

    EXPECT_EQ(held.held(commandBit), modifiers::command);
}

TEST(EventModifiers, LearnAgainWhenAnotherKeySwitchesTheSameBitOn) {
    EventModifiers held;
    held.flagsChanged(modifiers::command, commandBit);
    held.flagsChanged(modifiers::command, 0);

    held.flagsChanged(modifiers::option, commandBit);

    EXPECT_EQ(held.held(commandBit), modifiers::option);
}

TEST(EventModifiers, LearnNothingWhenSeveralBitsAppearAtOnce) {
    EventModifiers held;

    held.flagsChanged(modifiers::shift, shiftBit | commandBit);

    EXPECT_EQ(held.held(commandBit), modifiers::option);
}

TEST(EventModifiers, LearnNothingFromAReleaseOrFromAKeyThatIsNoModifier) {
    EventModifiers held;
    held.flagsChanged(modifiers::control, controlBit);

    held.flagsChanged(modifiers::control, 0);
    held.flagsChanged(0, commandBit);

    EXPECT_EQ(held.held(controlBit), modifiers::control);
    EXPECT_EQ(held.held(commandBit), modifiers::option);
}

TEST(EventModifiers, CountAModifierKeyWithoutABitWhileItIsDown) {
    EventModifiers held;

    held.keyDown(modifiers::command);
    EXPECT_EQ(held.held(shiftBit), modifiers::command | modifiers::shift);

    held.keyUp(modifiers::command);
    EXPECT_EQ(held.held(shiftBit), modifiers::shift);
}

TEST(EventModifiers, ForgetTheKeysThatAreDownButNotWhatTheBitsMean) {
    EventModifiers held;
    held.flagsChanged(modifiers::command, commandBit);
    held.keyDown(modifiers::control);

    held.forgetHeldKeys();

    EXPECT_EQ(held.held(0), 0U);
    EXPECT_EQ(held.held(commandBit), modifiers::command);
}

} // namespace qbsp::recorder

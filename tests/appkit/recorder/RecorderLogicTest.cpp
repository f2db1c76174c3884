#include "RecordingListener.h"

#include <gtest/gtest.h>

namespace qbsp::recorder {

namespace {

constexpr VirtualKey keyA = 0;
constexpr VirtualKey keyC = 8;
constexpr VirtualKey keyF5 = 96;
const KeyCombo empty{};
const KeyCombo controlC{.flags = modifiers::control, .code = keyC};
const KeyCombo commandA{.flags = modifiers::command, .code = keyA};

class Recorder : public testing::Test {
protected:
    KeyOutcome press(VirtualKey key, CocoaFlags flags = 0) {
        return logic.keyPressed({.key = key, .flags = flags});
    }

    KeyOutcome press(const KeyCombo& combo) { return press(combo.code, combo.flags); }

    RecordingListener listener;
    RecorderLogic logic{listener};
};

class ArmedRecorder : public Recorder {
protected:
    ArmedRecorder() {
        logic.setCombo(commandA);
        logic.arm();
    }
};

} // namespace

TEST_F(Recorder, SpaceArmsIt) {
    EXPECT_EQ(press(keys::space), KeyOutcome::handled);

    EXPECT_TRUE(logic.isArmed());
}

TEST_F(Recorder, LeavesOtherKeysToOthersWhileItIsIdle) {
    EXPECT_EQ(press(controlC), KeyOutcome::notHandled);
    EXPECT_EQ(press(keyF5), KeyOutcome::notHandled);
    EXPECT_EQ(press(keys::escape), KeyOutcome::notHandled);

    EXPECT_TRUE(listener.offered.empty());
}

TEST_F(ArmedRecorder, OffersACombinationWithCommandOptionOrControl) {
    for (const CocoaFlags flags : {modifiers::command, modifiers::option, modifiers::control}) {
        logic.arm();
        press(keyC, flags);
        EXPECT_EQ(listener.offered.back(), (KeyCombo{.flags = flags, .code = keyC}));
    }
}

TEST_F(ArmedRecorder, OffersAFunctionKeyAlone) {
    press(keyF5);

    EXPECT_EQ(listener.offered.back(), (KeyCombo{.flags = 0, .code = keyF5}));
    EXPECT_EQ(logic.combo(), (KeyCombo{.flags = 0, .code = keyF5}));
}

TEST_F(ArmedRecorder, OffersAFunctionKeyWithShift) {
    press(keyF5, modifiers::shift);

    EXPECT_EQ(logic.combo(), (KeyCombo{.flags = modifiers::shift, .code = keyF5}));
}

TEST_F(ArmedRecorder, RefusesATakenCombinationKeepsTheOldOneAndStillListens) {
    listener.takenCombo = controlC;

    EXPECT_EQ(press(controlC), KeyOutcome::handled);

    EXPECT_EQ(listener.shownRefusal, Refusal::taken);
    EXPECT_EQ(logic.combo(), commandA);
    EXPECT_TRUE(logic.isArmed());
    EXPECT_TRUE(listener.reported.empty());
}

TEST_F(ArmedRecorder, ShowsTheReasonUntilTheNextKey) {
    listener.takenCombo = controlC;
    press(controlC);

    press(keyC, modifiers::option);

    EXPECT_FALSE(listener.shownRefusal.has_value());
}

TEST_F(ArmedRecorder, ShowsTheReasonAgainWhenTheNextKeyIsRefusedToo) {
    listener.takenCombo = controlC;
    press(controlC);

    press(keyC);

    EXPECT_EQ(listener.shownRefusal, Refusal::plainKey);
}

TEST_F(ArmedRecorder, ReportsAnAcceptedCombinationOnceAndStopsListening) {
    EXPECT_EQ(press(controlC), KeyOutcome::handled);

    EXPECT_EQ(listener.reported, std::vector{controlC});
    EXPECT_EQ(logic.combo(), controlC);
    EXPECT_FALSE(logic.isArmed());
}

TEST_F(ArmedRecorder, DoesNotReportTheCombinationItAlreadyHolds) {
    press(commandA);

    EXPECT_TRUE(listener.reported.empty());
    EXPECT_FALSE(logic.isArmed());
}

TEST_F(ArmedRecorder, CancelsAtEscAndKeepsTheCombination) {
    EXPECT_EQ(press(keys::escape), KeyOutcome::handled);

    EXPECT_FALSE(logic.isArmed());
    EXPECT_EQ(logic.combo(), commandA);
    EXPECT_TRUE(listener.reported.empty());
}

TEST_F(ArmedRecorder, RecordsEscWithAModifier) {
    press(keys::escape, modifiers::control);

    EXPECT_EQ(logic.combo(), (KeyCombo{.flags = modifiers::control, .code = keys::escape}));
}

TEST_F(ArmedRecorder, ClearsAtDeleteOrBackspaceAndReportsTheEmptyCombination) {
    for (const VirtualKey key : {keys::backspace, keys::forwardDelete}) {
        logic.setCombo(commandA);
        logic.arm();
        EXPECT_EQ(press(key), KeyOutcome::handled);
        EXPECT_EQ(logic.combo(), empty);
        EXPECT_EQ(listener.reported.back(), empty);
        EXPECT_FALSE(logic.isArmed());
    }
}

TEST_F(ArmedRecorder, RecordsDeleteWithAModifier) {
    press(keys::backspace, modifiers::command);

    EXPECT_EQ(logic.combo(), (KeyCombo{.flags = modifiers::command, .code = keys::backspace}));
}

TEST_F(Recorder, LeavesDeleteToOthersWhileItIsIdle) {
    logic.setCombo(commandA);

    EXPECT_EQ(press(keys::forwardDelete), KeyOutcome::notHandled);
    EXPECT_EQ(press(keys::backspace), KeyOutcome::notHandled);

    EXPECT_EQ(logic.combo(), commandA);
    EXPECT_TRUE(listener.reported.empty());
}

TEST_F(Recorder, BringsBackWhatWasClearedAndTakesThatBack) {
    logic.setCombo(commandA);
    logic.clear();

    logic.undo();
    EXPECT_EQ(logic.combo(), commandA);
    logic.undo();

    EXPECT_EQ(logic.combo(), empty);
    EXPECT_EQ(listener.reported, (std::vector{empty, commandA, empty}));
}

TEST_F(ArmedRecorder, BringsBackWhatARecordedCombinationReplaced) {
    press(controlC);

    logic.undo();

    EXPECT_EQ(logic.combo(), commandA);
    EXPECT_EQ(listener.reported, (std::vector{controlC, commandA}));
}

TEST_F(Recorder, RefusesToBringBackWhatIsTakenByNow) {
    logic.setCombo(commandA);
    logic.clear();
    listener.takenCombo = commandA;

    logic.undo();

    EXPECT_EQ(logic.combo(), empty);
    EXPECT_EQ(listener.reported, std::vector{empty});
}

TEST_F(Recorder, SaysAtAReviewWhetherItsCombinationIsInUseElsewhereToo) {
    logic.setCombo(commandA);
    logic.review();
    EXPECT_FALSE(listener.showsUseElsewhere);

    listener.takenCombo = commandA;
    logic.review();
    EXPECT_TRUE(listener.showsUseElsewhere);

    listener.takenCombo.reset();
    logic.review();
    EXPECT_FALSE(listener.showsUseElsewhere);
}

TEST_F(Recorder, NeverSaysThatTheEmptyCombinationIsInUseElsewhere) {
    listener.takenCombo = empty;

    logic.review();

    EXPECT_FALSE(listener.showsUseElsewhere);
    EXPECT_TRUE(listener.offered.empty());
}

TEST_F(Recorder, NoLongerSaysThatItsCombinationIsInUseElsewhereOnceItChanges) {
    const auto beInUseElsewhere = [this] {
        listener.takenCombo = commandA;
        logic.setCombo(commandA);
        logic.review();
        return listener.showsUseElsewhere;
    };

    ASSERT_TRUE(beInUseElsewhere());
    logic.setCombo(controlC);
    EXPECT_FALSE(listener.showsUseElsewhere);

    ASSERT_TRUE(beInUseElsewhere());
    logic.clear();
    EXPECT_FALSE(listener.showsUseElsewhere);
}

TEST_F(ArmedRecorder, StillSaysThatItsCombinationIsInUseElsewhereWhenRecordingIsCancelled) {
    listener.takenCombo = commandA;
    logic.review();

    press(keyC);
    press(keys::escape);

    EXPECT_TRUE(listener.showsUseElsewhere);
}

TEST_F(Recorder, HasNothingToBringBackBeforeAChangeAndWhileItListens) {
    logic.setCombo(commandA);
    logic.undo();
    EXPECT_EQ(logic.combo(), commandA);

    logic.clear();
    logic.arm();
    logic.undo();
    EXPECT_EQ(logic.combo(), empty);
    EXPECT_TRUE(logic.isArmed());

    logic.setCombo(controlC);
    logic.disarm();
    logic.undo();
    EXPECT_EQ(logic.combo(), controlC);
}

TEST_F(Recorder, DoesNotReportThatAnEmptyRecorderWasCleared) {
    logic.arm();

    logic.clear();

    EXPECT_TRUE(listener.reported.empty());
    EXPECT_FALSE(logic.isArmed());
}

TEST_F(ArmedRecorder, KnowsWhichModifiersWaitForAKey) {
    logic.setHeldModifiers(modifiers::control | 0x10000);
    EXPECT_EQ(logic.heldModifiers(), modifiers::control);

    logic.setHeldModifiers(0);
    EXPECT_EQ(logic.heldModifiers(), 0U);
}

TEST_F(ArmedRecorder, KnowsOfNoHeldModifiersOnceItNoLongerListens) {
    logic.setHeldModifiers(modifiers::control);
    press(controlC);
    EXPECT_EQ(logic.heldModifiers(), 0U);

    logic.arm();
    logic.setHeldModifiers(modifiers::control);
    logic.disarm();
    EXPECT_EQ(logic.heldModifiers(), 0U);

    logic.setHeldModifiers(modifiers::control);
    EXPECT_EQ(logic.heldModifiers(), 0U);
}

TEST_F(ArmedRecorder, MovesOnAtTab) {
    EXPECT_EQ(press(keys::tab), KeyOutcome::nextView);

    EXPECT_FALSE(logic.isArmed());
    EXPECT_EQ(logic.combo(), commandA);
}

TEST_F(ArmedRecorder, MovesBackAtShiftTab) {
    EXPECT_EQ(press(keys::tab, modifiers::shift), KeyOutcome::previousView);

    EXPECT_FALSE(logic.isArmed());
}

TEST_F(ArmedRecorder, RecordsTabWithAModifier) {
    press(keys::tab, modifiers::control);

    EXPECT_EQ(logic.combo(), (KeyCombo{.flags = modifiers::control, .code = keys::tab}));
}

TEST_F(ArmedRecorder, RefusesShiftAloneWithALetter) {
    press(keyC, modifiers::shift);

    EXPECT_EQ(listener.shownRefusal, Refusal::shiftAlone);
    EXPECT_TRUE(listener.offered.empty());
    EXPECT_TRUE(logic.isArmed());
}

TEST_F(ArmedRecorder, RefusesAPlainLetter) {
    press(keyC);

    EXPECT_EQ(listener.shownRefusal, Refusal::plainKey);
    EXPECT_TRUE(listener.offered.empty());
    EXPECT_TRUE(logic.isArmed());
}

TEST_F(ArmedRecorder, RefusesAKeyThatTheMacDoesNotHave) {
    press(noKey, modifiers::command);

    EXPECT_EQ(listener.shownRefusal, Refusal::unknownKey);
    EXPECT_EQ(logic.combo(), commandA);
}

TEST_F(ArmedRecorder, ForgetsTheReasonWhenItIsDisarmed) {
    press(keyC);

    logic.disarm();

    EXPECT_FALSE(listener.shownRefusal.has_value());
}

TEST_F(Recorder, DoesNotReportACombinationSetByTheProgram) {
    logic.setCombo(controlC);

    EXPECT_EQ(logic.combo(), controlC);
    EXPECT_TRUE(listener.reported.empty());
}

TEST_F(Recorder, TreatsKeyCodeZeroLikeAnyOther) {
    logic.arm();

    press(commandA);

    EXPECT_EQ(listener.reported, std::vector{commandA});
}

TEST_F(Recorder, DistinguishesCodeZeroWithoutFlagsFromTheEmptyCombination) {
    logic.setCombo({.flags = 0, .code = 0});

    logic.clear();

    EXPECT_EQ(listener.reported, std::vector{empty});
}

TEST_F(Recorder, IgnoresTheRepetitionsOfAKeyThatIsHeldDown) {
    press(keys::space);

    EXPECT_EQ(logic.keyPressed({.key = keys::space, .flags = 0, .isRepeat = true}), KeyOutcome::handled);

    EXPECT_FALSE(listener.shownRefusal.has_value());
    EXPECT_TRUE(logic.isArmed());
}

TEST_F(Recorder, LeavesTheRepetitionsAloneWhileItIsIdle) {
    const KeyPress heldSpace{.key = keys::space, .flags = 0, .isRepeat = true};

    EXPECT_EQ(logic.keyPressed(heldSpace), KeyOutcome::notHandled);

    EXPECT_FALSE(logic.isArmed());
}

TEST_F(ArmedRecorder, DropsCapsLockAndOtherBitsOfTheEvent) {
    press(keyC, modifiers::control | 0x10000 | 0x800000 | 0x101);

    EXPECT_EQ(logic.combo(), controlC);
}

TEST_F(Recorder, AlsoDropsOtherBitsAndTheFlagsOfNoKeyFromTheProgramsCombination) {
    logic.setCombo({.flags = modifiers::control | 0x10000, .code = keyC});
    EXPECT_EQ(logic.combo(), controlC);

    logic.setCombo({.flags = modifiers::control, .code = noKey});
    EXPECT_EQ(logic.combo(), empty);
}

} // namespace qbsp::recorder

#include "EventPump.h"
#include "RecorderViewFixture.h"

namespace qbsp::recorder {

namespace {

RecorderWindow* otherWindow() {
    static RecorderWindow* const window = [[RecorderWindow alloc] initAtOrigin:NSMakePoint(700, 400)];
    [window fill];
    return window;
}

} // namespace

TEST_F(RecorderView, AClickArmsIt) {
    click(first);

    EXPECT_TRUE([first isListening]);
    EXPECT_EQ([window firstResponder], first);
}

TEST_F(RecorderView, SpaceArmsIt) {
    focus(first);

    press("space");

    EXPECT_TRUE([first isListening]);
}

TEST_F(RecorderView, TheFocusAloneDoesNotArmIt) {
    focus(first);

    EXPECT_FALSE([first isListening]);
}

TEST_F(RecorderView, ArmingOneDisarmsAnother) {
    click(first);

    click(second);

    EXPECT_FALSE([first isListening]);
    EXPECT_TRUE([second isListening]);
}

TEST_F(RecorderView, ArmingOneDisarmsAnotherInAnotherWindow) {
    RecorderWindow* other = otherWindow();
    armFirst();

    makeKey(other);
    [other makeFirstResponder:other->first];
    [other->first accessibilityPerformPress];

    EXPECT_TRUE([other->first isListening]);
    EXPECT_TRUE(waitUntil([&] { return ![first isListening]; }));
    [other orderOut:nil];
}

TEST_F(RecorderView, WhileArmedItSaysThatItListens) {
    [first setKeyCode:0 flags:modifiers::command];
    armFirst();

    EXPECT_EQ(text([first stringValue]), "Type shortcut");
}

TEST_F(RecorderView, WhileArmedItIsHighlighted) {
    focus(first);
    [first display];
    NSData* idle = picture(first);

    press("space");
    [first display];

    EXPECT_FALSE([idle isEqualToData:picture(first)]);
}

TEST_F(RecorderView, LosingTheFocusDisarmsIt) {
    armFirst();

    focus(window->textField);

    EXPECT_FALSE([first isListening]);
}

TEST_F(RecorderView, LosingTheWindowsKeyStateDisarmsIt) {
    RecorderWindow* other = otherWindow();
    armFirst();

    makeKey(other);

    EXPECT_TRUE(waitUntil([&] { return ![first isListening]; }));
    EXPECT_EQ([window firstResponder], first);
    [other orderOut:nil];
}

TEST_F(RecorderView, LeavingItsWindowDisarmsIt) {
    armFirst();
    appkit::Retained<QBSPRecorderView*> kept(first);

    [first removeFromSuperview];

    EXPECT_FALSE([first isListening]);
}

TEST_F(RecorderView, EscCancelsAndKeepsTheCombination) {
    [first setKeyCode:0 flags:modifiers::command];
    armFirst();

    press("Escape");

    EXPECT_FALSE([first isListening]);
    EXPECT_EQ(comboOf(first), commandA);
    EXPECT_TRUE(delegateCalls.reported.empty());
}

TEST_F(RecorderView, TabMovesOn) {
    armFirst();

    press("Tab");

    EXPECT_FALSE([first isListening]);
    EXPECT_EQ([window firstResponder], second);
    EXPECT_FALSE([second isListening]);
}

TEST_F(RecorderView, ShiftTabMovesBack) {
    focus(second);
    press("space");

    press("shift+Tab");

    EXPECT_FALSE([second isListening]);
    EXPECT_EQ([window firstResponder], first);
}

TEST_F(RecorderView, TabAlsoMovesOnWhileItIsIdle) {
    focus(first);

    press("Tab");

    EXPECT_EQ([window firstResponder], second);
}

TEST_F(RecorderView, WhileArmedItKeepsKeysFromButtonsAndMenus) {
    armFirst();

    press("Return");
    press("ctrl+Return");

    EXPECT_EQ(window->actions, 0) << "Return should not have reached the button";
    EXPECT_EQ(comboOf(first), (KeyCombo{.flags = modifiers::control, .code = keys::returnKey}));
}

TEST_F(RecorderView, WhileIdleItLeavesKeysToButtonsAndMenus) {
    focus(first);

    press("Return");

    EXPECT_TRUE(waitUntil([&] { return window->actions == 1; }))
        << "Return should have pressed the button once, and not " << window->actions << " times";
}

TEST_F(RecorderView, WhileArmedItKeepsTheMenusShortcutsFromTheMenu) {
    NSMenu* menu = [[[NSMenu alloc] initWithTitle:@"Test"] autorelease];
    [[menu addItemWithTitle:@"Act" action:@selector(act:) keyEquivalent:@"c"] setTarget:window];
    [NSApp setMainMenu:menu];
    armFirst();

    press("alt+c");
    const int whileArmed = window->actions;
    press("alt+c");

    EXPECT_EQ(whileArmed, 0) << "the shortcut should not have reached the menu while the recorder listens";
    EXPECT_EQ(comboOf(first), (KeyCombo{.flags = modifiers::option, .code = keyC}));
    EXPECT_EQ(window->actions, 1) << "the shortcut should reach the menu once the recorder is idle";
    [NSApp setMainMenu:nil];
}

TEST_F(RecorderView, ARecorderThatGoesAwayWhileItListensLeavesNothingBehind) {
    armFirst();
    press("c");
    ASSERT_NE(reason(), "");

    [first removeFromSuperview];
    first = nil;

    EXPECT_EQ(reason(), "");
}

} // namespace qbsp::recorder

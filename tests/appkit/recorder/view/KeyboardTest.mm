#include "EventPump.h"
#include "RecorderViewFixture.h"
#include "appkit/recorder/gnustep/X11KeyCodes.h"

namespace qbsp::recorder {

namespace {

constexpr CocoaFlags commandBit = 0x100000;
constexpr CocoaFlags optionBit = 0x80000;
constexpr X11KeyCode leftSuper = 133;
constexpr X11KeyCode leftAlt = 64;
constexpr VirtualKey keyQ = 12;
constexpr VirtualKey keyZ = 6;

NSEvent* keyEvent(NSEventType type, X11KeyCode keyCode, CocoaFlags flags) {
    return [NSEvent keyEventWithType:type
                            location:NSZeroPoint
                       modifierFlags:static_cast<NSUInteger>(flags)
                           timestamp:0
                        windowNumber:0
                             context:nil
                          characters:@""
         charactersIgnoringModifiers:@""
                           isARepeat:NO
                             keyCode:static_cast<unsigned short>(keyCode)];
}

/// The bits that GNUstep sets for those modifiers when nothing is configured.
CocoaFlags eventBits(CocoaFlags flags) {
    constexpr CocoaFlags helpBit = 0x400000;
    return (flags & (modifiers::shift | modifiers::control)) |
           ((flags & modifiers::option) != 0 ? commandBit : 0) |
           ((flags & modifiers::command) != 0 ? helpBit : 0);
}

bool useLayout(const std::string& layout) {
    return run({"setxkbmap", layout});
}

} // namespace

class KeyboardLayout : public RecorderView {
protected:
    void TearDown() override {
        EXPECT_TRUE(useLayout("us"));
        RecorderView::TearDown();
    }

    /// What is shown once the new layout is in use; what was shown last when it never is.
    std::string shown(const std::string& expected) {
        std::string seen;
        std::ignore = waitUntil([&] { return (seen = text([first stringValue])) == expected; });
        return seen;
    }
};

TEST_F(RecorderView, RecordsEveryKeyOfTheTableWithEverySetOfModifiersThatMakesAHotKey) {
    for (VirtualKey key = 0; key < 128; ++key)
        for (CocoaFlags set = 0; set < 16 && x11KeyOfVirtual(key) != 0; ++set) {
            const KeyCombo combo{.flags = set << 17, .code = key};
            const X11KeyCode numLock = x11KeyOfVirtual(71);
            if ((combo.flags & ~modifiers::shift) == 0 || x11KeyOfVirtual(key) == numLock)
                continue;
            [first setKeyCode:-1 flags:0];
            [first accessibilityPerformPress];
            [first performKeyEquivalent:keyEvent(NSKeyDown, x11KeyOfVirtual(key), eventBits(combo.flags))];
            [first keyUp:keyEvent(NSKeyUp, x11KeyOfVirtual(key), 0)];
            ASSERT_EQ(comboOf(first), combo) << text([first accessibilityValue]);
        }
}

TEST_F(RecorderView, UnderstandsAHostThatChoseItsOwnModifierKeys) {
    [first accessibilityPerformPress];

    [first flagsChanged:keyEvent(NSFlagsChanged, leftSuper, commandBit)];
    [first flagsChanged:keyEvent(NSFlagsChanged, leftAlt, commandBit | optionBit)];
    [first performKeyEquivalent:keyEvent(NSKeyDown, x11KeyOfVirtual(keyQ), commandBit | optionBit)];

    EXPECT_EQ(comboOf(first), (KeyCombo{.flags = modifiers::command | modifiers::option, .code = keyQ}));
}

TEST_F(KeyboardLayout, TheLabelIsWhatTheLayoutPrintsOnTheKey) {
    [first setKeyCode:keyZ flags:modifiers::control];
    EXPECT_EQ(shown("Ctrl+Z"), "Ctrl+Z");

    ASSERT_TRUE(useLayout("de"));
    EXPECT_EQ(shown("Ctrl+Y"), "Ctrl+Y");

    [first setKeyCode:keyQ flags:modifiers::control];
    ASSERT_TRUE(useLayout("fr"));
    EXPECT_EQ(shown("Ctrl+A"), "Ctrl+A");
    EXPECT_EQ(text([first accessibilityValue]), "Control A");
}

TEST_F(KeyboardLayout, IsFollowedOnTheScreenAtOnce) {
    [first setKeyCode:keyZ flags:modifiers::control];
    [first display];
    NSData* const american = picture(first);

    ASSERT_TRUE(useLayout("de"));
    EXPECT_TRUE(waitUntil([&] { return ![picture(first) isEqual:american]; }));
    NSData* const german = picture(first);
    [first display];
    EXPECT_TRUE([german isEqual:picture(first)]);

    ASSERT_TRUE(useLayout("us"));
    EXPECT_TRUE(waitUntil([&] { return [picture(first) isEqual:american]; }));
}

TEST_F(KeyboardLayout, TheOneInUseOfTwoIsFollowedOnTheScreenAtOnce) {
    ASSERT_TRUE(useLayout("us,de"));
    [first setKeyCode:keyZ flags:modifiers::control];
    EXPECT_EQ(shown("Ctrl+Z"), "Ctrl+Z");
    [first display];
    NSData* const american = picture(first);

    useSecondLayout(window);
    EXPECT_TRUE(waitUntil([&] { return ![picture(first) isEqual:american]; }));
    EXPECT_EQ(text([first stringValue]), "Ctrl+Y");
}

TEST_F(KeyboardLayout, LettersOfOtherAlphabetsAreShownToo) {
    [first setKeyCode:keyQ flags:modifiers::control];

    ASSERT_TRUE(useLayout("ru"));
    EXPECT_EQ(shown("Ctrl+Й"), "Ctrl+Й");

    ASSERT_TRUE(useLayout("gr"));
    EXPECT_EQ(shown("Ctrl+;"), "Ctrl+;");
}

TEST_F(KeyboardLayout, AKeyThatPrintsNoCapitalOrOnlyAnAccentIsShownAsItIs) {
    ASSERT_TRUE(useLayout("de"));

    [first setKeyCode:27 flags:modifiers::control];
    EXPECT_EQ(shown("Ctrl+ß"), "Ctrl+ß");

    [first setKeyCode:50 flags:modifiers::control];
    EXPECT_EQ(shown("Ctrl+^"), "Ctrl+^");
}

TEST_F(KeyboardLayout, TheCodeIsTheKeysPlaceWhateverItPrints) {
    ASSERT_TRUE(useLayout("de"));
    [first setKeyCode:keyZ flags:modifiers::option];
    ASSERT_EQ(shown("Alt+Y"), "Alt+Y");
    armFirst();

    press("ctrl+y");

    EXPECT_EQ(comboOf(first), (KeyCombo{.flags = modifiers::control, .code = keyZ}));
}

} // namespace qbsp::recorder

#include "appkit/recorder/gnustep/X11KeyCodes.h"

#include "appkit/recorder/KeyNames.h"

#include <gtest/gtest.h>

#include <set>

namespace qbsp::recorder {

namespace {

constexpr X11KeyCode lastX11Key = 255;
constexpr VirtualKey lastVirtualKey = 127;

} // namespace

TEST(X11KeyCodes, TranslateIntoTheMacsAndBackAgain) {
    std::set<VirtualKey> seen;
    for (X11KeyCode x11 = 0; x11 <= lastX11Key; ++x11) {
        const VirtualKey key = virtualKeyOfX11(x11);
        if (key == noKey)
            continue;
        EXPECT_EQ(x11KeyOfVirtual(key), x11);
        EXPECT_TRUE(seen.insert(key).second) << "two keys have the Mac's code " << key;
    }
    EXPECT_EQ(seen.size(), 107U) << "each of the 107 keys of the table should have its own code";
}

TEST(X11KeyCodes, TranslateFromTheMacsAndBackAgain) {
    for (VirtualKey key = 0; key <= lastVirtualKey; ++key)
        if (const X11KeyCode x11 = x11KeyOfVirtual(key); x11 != 0) {
            EXPECT_EQ(virtualKeyOfX11(x11), key);
        }
}

TEST(X11KeyCodes, CoverEveryKeyThatHasAName) {
    for (VirtualKey key = 0; key <= lastVirtualKey; ++key) {
        const bool named = !fixedKeyName(key).word.empty() || !americanLabel(key).empty();
        EXPECT_EQ(x11KeyOfVirtual(key) != 0, named) << "the Mac's code " << key;
    }
}

TEST(X11KeyCodes, GoByTheKeysPlaces) {
    EXPECT_EQ(virtualKeyOfX11(38), 0) << "A";
    EXPECT_EQ(virtualKeyOfX11(36), 36) << "Return";
    EXPECT_EQ(virtualKeyOfX11(9), 53) << "Escape";
    EXPECT_EQ(virtualKeyOfX11(23), 48) << "Tab";
    EXPECT_EQ(virtualKeyOfX11(67), 122) << "F1";
    EXPECT_EQ(virtualKeyOfX11(113), 123) << "Left Arrow";
    EXPECT_EQ(virtualKeyOfX11(94), 10) << "the key beside Shift on European keyboards";
    EXPECT_EQ(virtualKeyOfX11(84), 87) << "Keypad 5";
}

TEST(X11KeyCodes, LeaveOutModifiersAndKeysThatTheMacDoesNotHave) {
    for (const X11KeyCode x11 : {0U, 37U, 50U, 64U, 66U, 107U, 133U, 172U})
        EXPECT_EQ(virtualKeyOfX11(x11), noKey) << x11;
    EXPECT_EQ(x11KeyOfVirtual(noKey), 0U) << "no key";
    EXPECT_EQ(x11KeyOfVirtual(55), 0U) << "Command";
}

} // namespace qbsp::recorder

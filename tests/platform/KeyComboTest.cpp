#include "platform/KeyCombo.h"

#include <gtest/gtest.h>

namespace qbsp::platform {

namespace {

struct Modifier {
    const char* name;
    CocoaFlags cocoa;
    CarbonFlags carbon;
};

constexpr Modifier modifierPairs[] = {{"shift", 0x20000, 0x200},
                                      {"control", 0x40000, 0x1000},
                                      {"option", 0x80000, 0x800},
                                      {"command", 0x100000, 0x100}};

} // namespace

TEST(ModifierFlags, AreCarriedToCarbonOneByOne) {
    for (const Modifier& modifier : modifierPairs)
        EXPECT_EQ(cocoaToCarbonFlags(modifier.cocoa), modifier.carbon) << modifier.name;
}

TEST(ModifierFlags, AreCarriedToCocoaOneByOne) {
    for (const Modifier& modifier : modifierPairs)
        EXPECT_EQ(carbonToCocoaFlags(modifier.carbon), modifier.cocoa) << modifier.name;
}

TEST(ModifierFlags, LoseAllOtherBitsInBothDirections) {
    EXPECT_EQ(cocoaToCarbonFlags(~CocoaFlags{0}), 0x1B00U);
    EXPECT_EQ(cocoaToCarbonFlags(~CocoaFlags{0x1E0000}), 0U);
    EXPECT_EQ(carbonToCocoaFlags(~CarbonFlags{0}), 0x1E0000U);
    EXPECT_EQ(carbonToCocoaFlags(~CarbonFlags{0x1B00}), 0U);
}

TEST(ModifierFlags, ComeBackAsTheyWere) {
    for (CocoaFlags bits = 0; bits < 16; ++bits)
        EXPECT_EQ(carbonToCocoaFlags(cocoaToCarbonFlags(bits << 17U)), bits << 17U);
}

TEST(KeyCombo, IsKnownByBothItsFields) {
    EXPECT_EQ((KeyCombo{1, 2}), (KeyCombo{1, 2}));
    EXPECT_NE((KeyCombo{1, 2}), (KeyCombo{0, 2}));
    EXPECT_NE((KeyCombo{1, 2}), (KeyCombo{1, 0}));
}

TEST(KeyCombo, IsEmptyAtFirst) {
    EXPECT_EQ(KeyCombo().code, -1);
    EXPECT_EQ(KeyCombo().flags, 0U);
}

} // namespace qbsp::platform

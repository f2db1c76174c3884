#include "hotkeys/StoredHotKey.h"

#include <gtest/gtest.h>

namespace qbsp {

TEST(StoredHotKey, IsNothingWhenNothingIsStored) {
    const StoredHotKey hotKey = StoredHotKey::read({}, {});

    EXPECT_EQ(hotKey.code, 0);
    EXPECT_EQ(hotKey.modifiers, 0U);
}

TEST(StoredHotKey, HasACodeOf16SignedBits) {
    for (const auto& [stored, read] : {std::pair{65537, 1},
                                       {65536, 0},
                                       {-1, -1},
                                       {32767, 32767},
                                       {32768, -32768},
                                       {-32769, 32767},
                                       {0x7FFFFFFF, -1}})
        EXPECT_EQ(StoredHotKey::read(stored, 0).code, read) << stored;
}

TEST(StoredHotKey, HasModifiersOf32UnsignedBits) {
    EXPECT_EQ(StoredHotKey::read(0, std::uint32_t{0xFFFFFFFF}).modifiers, 0xFFFFFFFFU);
    EXPECT_EQ(StoredHotKey::read(0, -1).modifiers, 0xFFFFFFFFU);
    EXPECT_EQ(StoredHotKey::read(0, std::int64_t{0x100000200}).modifiers, 0x200U);
}

TEST(StoredHotKey, IsReadFromTexts) {
    const StoredHotKey hotKey = StoredHotKey::read("  -7 keys", "256");

    EXPECT_EQ(hotKey.code, -7);
    EXPECT_EQ(hotKey.modifiers, 256U);
}

TEST(StoredHotKey, IsReadAsNothingFromValuesThatAreNoNumbers) {
    const StoredHotKey hotKey = StoredHotKey::read(platform::Array{8}, platform::Dictionary{});

    EXPECT_EQ(hotKey.code, 0);
    EXPECT_EQ(hotKey.modifiers, 0U);
}

TEST(StoredHotKey, IsShownWithCocoasModifiers) {
    const StoredHotKey hotKey{45, 0x900};

    EXPECT_EQ(hotKey.keyCombo(), (platform::KeyCombo{0x180000, 45}));
}

TEST(StoredHotKey, MatchesExactlyItsCombination) {
    const StoredHotKey hotKey{45, 0x900};

    EXPECT_TRUE(hotKey.matches(45, 0x180000));
    EXPECT_TRUE(hotKey.matches(45, 0x190000)) << "Caps Lock is ignored";
    EXPECT_FALSE(hotKey.matches(44, 0x180000));
    EXPECT_FALSE(hotKey.matches(45, 0x100000));
    EXPECT_FALSE(hotKey.matches(45 + 65536, 0x180000));
}

TEST(StoredHotKey, WithBitsThatNoCombinationHasMatchesNone) {
    const StoredHotKey hotKey{0, 1};

    EXPECT_FALSE(hotKey.matches(0, 0));
    EXPECT_FALSE(hotKey.matches(0, 1));
}

TEST(StoringAHotKey, KeepsTheCodes32LowBitsSigned) {
    EXPECT_EQ(storedCode({0, -1}), std::int32_t{-1});
    EXPECT_EQ(storedCode({0, 70000}), std::int32_t{70000});
    EXPECT_EQ(storedCode({0, 0x100000008}), std::int32_t{8});
}

TEST(StoringAHotKey, KeepsCarbonsModifiersUnsigned) {
    EXPECT_EQ(storedModifiers({0x1E0000, 0}), std::uint32_t{0x1B00});
    EXPECT_EQ(storedModifiers({0, 0}), std::uint32_t{0});
}

} // namespace qbsp

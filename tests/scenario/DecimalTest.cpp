#include "scenario/Decimal.h"

#include <gtest/gtest.h>

#include <limits>

namespace qbsp::scenario {

namespace {

Decimal decimal(const char* digits) {
    return Decimal::parse(digits).value();
}

} // namespace

TEST(Decimal, IsSpelledByDigitsWithAPointBetweenThem) {
    for (const char* const digits :
         {"0", "7", "007", "0.75", "12.50", "99999999999999999999.000000000000000000001"})
        EXPECT_TRUE(Decimal::parse(digits).has_value()) << digits;
    for (const char* const digits : {"", ".", "1.", ".5", "-1", "+1", "1e3", "0x1", "1.2.3", " 1", "1 "})
        EXPECT_FALSE(Decimal::parse(digits).has_value()) << digits;
}

TEST(Decimal, IsTheSameWhateverZerosStandAround) {
    EXPECT_EQ(decimal("007.500"), decimal("7.5"));
    EXPECT_EQ(decimal("0.0"), Decimal());
    EXPECT_EQ(decimal("10"), decimal("10.0"));
}

TEST(Decimal, IsAddedExactly) {
    EXPECT_EQ(decimal("0.1") + decimal("0.2"), decimal("0.3"));
    EXPECT_EQ(decimal("9.99") + decimal("0.01"), decimal("10"));
    EXPECT_EQ(decimal("99999999999999999999") + decimal("0.5"), decimal("99999999999999999999.5"));
    EXPECT_EQ(decimal("0.75") + decimal("12"), decimal("12.75"));
}

TEST(Decimal, IsOrderedByItsValue) {
    EXPECT_LT(decimal("0.75"), decimal("0.751"));
    EXPECT_LT(decimal("0.7"), decimal("0.75"));
    EXPECT_LT(decimal("9"), decimal("10"));
    EXPECT_LT(decimal("9.9"), decimal("10.1"));
    EXPECT_LT(decimal("19"), decimal("20"));
    EXPECT_GT(decimal("1"), decimal("0.999"));
}

TEST(Decimal, IsNearestToADouble) {
    EXPECT_EQ(decimal("0").toDouble(), 0.0);
    EXPECT_EQ(decimal("0.75").toDouble(), 0.75);
    EXPECT_EQ(decimal("12").toDouble(), 12.0);
    EXPECT_EQ(decimal(("0." + std::string(400, '0') + "1").c_str()).toDouble(), 0.0);
    EXPECT_EQ(decimal(std::string(400, '9').c_str()).toDouble(), std::numeric_limits<double>::infinity());
}

TEST(Decimal, IsTheShortestFormOfADouble) {
    EXPECT_EQ(Decimal::of(0.75), decimal("0.75"));
    EXPECT_EQ(Decimal::of(0.1), decimal("0.1"));
    EXPECT_EQ(Decimal::of(12), decimal("12"));
}

} // namespace qbsp::scenario

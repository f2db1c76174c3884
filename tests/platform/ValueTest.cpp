#include "platform/Value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

namespace qbsp::platform {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr std::int32_t lowest32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t highest32 = std::numeric_limits<std::int32_t>::max();

std::int32_t intOf(const char* text) {
    return Value(text).intValue();
}

bool boolOf(const char* text) {
    return Value(text).boolValue();
}

} // namespace

TEST(Value, IsAbsentAtFirst) {
    EXPECT_FALSE(Value().exists());
    EXPECT_EQ(Value().intValue(), 0);
    EXPECT_EQ(Value().unsignedIntValue(), 0U);
    EXPECT_FALSE(Value().boolValue());
}

TEST(Value, KeepsItsKind) {
    EXPECT_NE(Value(true), Value(1));
    EXPECT_NE(Value(1), Value(1U));
    EXPECT_NE(Value(std::int64_t{1}), Value(std::uint64_t{1}));
    EXPECT_NE(Value(1.0), Value(1));
    EXPECT_NE(Value("1"), Value(1));
    EXPECT_EQ(Value("text"), Value(std::string("text")));
    EXPECT_EQ(Value(Date{1.5}), Value(Date{1.5}));
    EXPECT_NE(Value(Date{1.5}), Value(Date{2.5}));
    EXPECT_EQ(Value(Data{std::byte{1}}), Value(Data{std::byte{1}}));
}

TEST(Value, IsReturnedOnlyAsItsOwnKind) {
    const Value value = Dictionary{{"a", 1}};

    EXPECT_NE(value.as<Dictionary>(), nullptr);
    EXPECT_EQ(value.as<Array>(), nullptr);
    EXPECT_EQ(Value(true).as<std::int32_t>(), nullptr);
    EXPECT_EQ(*Value("text").as<std::string>(), "text");
    EXPECT_EQ(*Value(1.5).as<double>(), 1.5);
}

TEST(Value, IsVisitedAsItsKind) {
    const auto isText = [](const auto& kind) {
        return std::is_same_v<std::remove_cvref_t<decltype(kind)>, std::string>;
    };

    EXPECT_TRUE(Value("text").visit(isText));
    EXPECT_FALSE(Value(1).visit(isText));
    EXPECT_FALSE(Value().visit(isText));
}

TEST(Value, IsNotChangedByWhatHappensToACopy) {
    const Value original = Array{"text", Dictionary{{"a", 1}}};
    Value copy = original;
    Value assigned;
    assigned = original;

    EXPECT_NE(copy.as<Array>(), original.as<Array>());
    EXPECT_NE(assigned.as<Array>(), original.as<Array>());
    copy = Array{};
    assigned = 5;

    EXPECT_EQ(copy, Array{});
    EXPECT_EQ(assigned, 5);
    EXPECT_EQ(original, (Array{"text", Dictionary{{"a", 1}}}));
}

TEST(Value, TakesOverTheContentsOfWhatIsMovedIntoIt) {
    Value source = Array{1, 2};
    const auto* const contents = source.as<Array>();

    Value moved = std::move(source);
    EXPECT_EQ(moved.as<Array>(), contents);
    Value assigned = "text";
    assigned = std::move(moved);

    EXPECT_EQ(assigned.as<Array>(), contents);
}

TEST(Value, IsNoValueOnceMovedFrom) {
    Value constructedFrom = "text";
    Value assignedFrom = Array{1};
    Value target = std::move(constructedFrom);
    target = std::move(assignedFrom);

    EXPECT_EQ(constructedFrom, Value());
    EXPECT_EQ(assignedFrom, Value());
}

TEST(Value, SurvivesBeingMovedIntoItself) {
    Value value = "text";
    Value& same = value;

    value = std::move(same);

    EXPECT_EQ(value, "text");
}

TEST(IntValue, OfABooleanIsZeroOrOne) {
    EXPECT_EQ(Value(true).intValue(), 1);
    EXPECT_EQ(Value(false).intValue(), 0);
}

TEST(IntValue, OfAnIntegerIsItsLow32Bits) {
    EXPECT_EQ(Value(-5).intValue(), -5);
    EXPECT_EQ(Value(std::uint32_t{0xFFFFFFFF}).intValue(), -1);
    EXPECT_EQ(Value(std::int64_t{0x1'0000'0007}).intValue(), 7);
    EXPECT_EQ(Value(std::numeric_limits<std::int64_t>::min()).intValue(), 0);
    EXPECT_EQ(Value(std::numeric_limits<std::uint64_t>::max()).intValue(), -1);
}

TEST(IntValue, OfARealLosesTheFraction) {
    EXPECT_EQ(Value(2.9).intValue(), 2);
    EXPECT_EQ(Value(-2.9).intValue(), -2);
    EXPECT_EQ(Value(-0.5).intValue(), 0);
}

TEST(IntValue, OfAHugeRealIsItsLow32Bits) {
    EXPECT_EQ(Value(4294967298.5).intValue(), 2);
    EXPECT_EQ(Value(-4294967298.5).intValue(), -2);
    EXPECT_EQ(Value(2147483648.0).intValue(), lowest32);
    EXPECT_EQ(Value(4294967295.0).intValue(), -1);
    EXPECT_EQ(Value(1e300).intValue(), 0);
    EXPECT_EQ(Value(std::numeric_limits<double>::max()).intValue(), 0);
}

TEST(IntValue, OfARealThatIsNoNumberIsZero) {
    EXPECT_EQ(Value(infinity).intValue(), 0);
    EXPECT_EQ(Value(-infinity).intValue(), 0);
    EXPECT_EQ(Value(std::nan("")).intValue(), 0);
}

TEST(IntValue, OfATextIsWhatItsDigitsSay) {
    EXPECT_EQ(intOf("42"), 42);
    EXPECT_EQ(intOf("-42"), -42);
    EXPECT_EQ(intOf("+42"), 42);
    EXPECT_EQ(intOf("   7 keys"), 7);
    EXPECT_EQ(intOf("  -7 keys"), -7);
    EXPECT_EQ(intOf("0090"), 90);
    EXPECT_EQ(intOf("1.9"), 1);
    EXPECT_EQ(intOf("12e3"), 12);
}

TEST(IntValue, OfATextThatDoesNotBeginWithDigitsIsZero) {
    for (const char* const text : {"", " ", "-", "+", "keys", "- 7", "--7", "+-7", "YES", "\t7", "x7"})
        EXPECT_EQ(intOf(text), 0) << text;
}

TEST(IntValue, OfATextEndsAtTheFirstOtherCharacter) {
    EXPECT_EQ(intOf("1_2"), 1);
    EXPECT_EQ(intOf("_5"), 0);
    EXPECT_EQ(intOf("-_5"), 0);
}

TEST(IntValue, OfATextIsClampedTo32Bits) {
    EXPECT_EQ(intOf("2147483647"), highest32);
    EXPECT_EQ(intOf("2147483648"), highest32);
    EXPECT_EQ(intOf("99999999999999999999999999"), highest32);
    EXPECT_EQ(intOf("-2147483648"), lowest32);
    EXPECT_EQ(intOf("-2147483649"), lowest32);
    EXPECT_EQ(intOf("-99999999999999999999999999"), lowest32);
}

TEST(IntValue, OfAnyOtherKindIsZero) {
    EXPECT_EQ(Value(Date{5}).intValue(), 0);
    EXPECT_EQ(Value(Data{std::byte{5}}).intValue(), 0);
    EXPECT_EQ(Value(Array{5}).intValue(), 0);
    EXPECT_EQ(Value(Dictionary{{"5", 5}}).intValue(), 0);
}

TEST(UnsignedIntValue, HasTheBitsOfIntValue) {
    EXPECT_EQ(Value(-1).unsignedIntValue(), 0xFFFFFFFFU);
    EXPECT_EQ(Value("-1").unsignedIntValue(), 0xFFFFFFFFU);
    EXPECT_EQ(Value("4294967295").unsignedIntValue(), 0x7FFFFFFFU);
    EXPECT_EQ(Value(std::uint32_t{0x80000000}).unsignedIntValue(), 0x80000000U);
    EXPECT_EQ(Value(4294967295.0).unsignedIntValue(), 0xFFFFFFFFU);
}

TEST(BoolValue, OfANumberIsTrueUnlessItIsZero) {
    EXPECT_TRUE(Value(true).boolValue());
    EXPECT_FALSE(Value(false).boolValue());
    EXPECT_TRUE(Value(-1).boolValue());
    EXPECT_FALSE(Value(0).boolValue());
    EXPECT_TRUE(Value(2U).boolValue());
    EXPECT_TRUE(Value(std::int64_t{0x1'0000'0000}).boolValue());
    EXPECT_FALSE(Value(std::uint64_t{0}).boolValue());
    EXPECT_TRUE(Value(0.25).boolValue());
    EXPECT_FALSE(Value(-0.0).boolValue());
    EXPECT_TRUE(Value(std::nan("")).boolValue());
}

TEST(BoolValue, OfATextIsTrueWhenItBeginsLikeYesOrTrue) {
    for (const char* const text : {"YES", "yes", "Yet", "true", "T", "  y"})
        EXPECT_TRUE(boolOf(text)) << text;
}

TEST(BoolValue, OfATextIsTrueWhenItBeginsWithANumberOtherThanZero) {
    for (const char* const text : {"1", "9", "5", "  007", "-3", "+0001", "-09", "2x"})
        EXPECT_TRUE(boolOf(text)) << text;
}

TEST(BoolValue, OfAnyOtherTextIsFalse) {
    for (const char* const text : {"", "  ", "NO", "no", "0", "00", "-", "-0", "+", "0x1", "--1", "- 1",
                                   "0.5", "-y", "0y", "\t1", "on", "false"})
        EXPECT_FALSE(boolOf(text)) << text;
}

TEST(BoolValue, OfATextIsFalseWhenItBeginsWithSomethingElse) {
    for (const char* text : {"_", "_1", "_Y", "-_1", "0_1", "+_1"})
        EXPECT_FALSE(boolOf(text)) << text;
}

TEST(BoolValue, OfAnyOtherKindIsFalse) {
    EXPECT_FALSE(Value(Date{5}).boolValue());
    EXPECT_FALSE(Value(Data{std::byte{5}}).boolValue());
    EXPECT_FALSE(Value(Array{true}).boolValue());
    EXPECT_FALSE(Value(Dictionary{{"a", true}}).boolValue());
}

TEST(Entry, IsNoValueWhereItIsMissing) {
    EXPECT_EQ(entry({{"a", 1}}, "a"), 1);
    EXPECT_FALSE(entry({{"a", 1}}, "b").exists());
}

TEST(StringEntry, IsNoneWhereItIsMissingOrOfAnotherKind) {
    EXPECT_EQ(stringEntry({{"a", "text"}}, "a"), "text");
    EXPECT_EQ(stringEntry({{"a", 1}}, "a"), std::nullopt);
    EXPECT_EQ(stringEntry({{"a", "text"}}, "b"), std::nullopt);
}

} // namespace qbsp::platform

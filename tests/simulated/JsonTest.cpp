#include "simulated/Json.h"

#include "simulated/Arguments.h"

#include <gtest/gtest.h>

#include <limits>

namespace qbsp::simulated {

using platform::Array;
using platform::Dictionary;
using platform::Value;

TEST(JsonText, HasASpaceAfterEachCommaAndColon) {
    EXPECT_EQ(json(Dictionary{{"b", Array{1, true, Value()}}, {"a", Dictionary{}}, {"B", Array{}}}),
              R"({"B": [], "a": {}, "b": [1, true, null]})");
}

TEST(JsonText, OfWholeNumbersHasAllDigits) {
    EXPECT_EQ(json(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(json(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
    EXPECT_EQ(json(-1), "-1");
    EXPECT_EQ(json(4294967295U), "4294967295");
}

TEST(JsonText, OfRealsHasAPoint) {
    EXPECT_EQ(json(1.0), "1.0");
}

TEST(JsonText, OfDatesAndDataIsPrintable) {
    EXPECT_EQ(json(platform::Date{1.5}), "1.5");
    EXPECT_EQ(json(platform::Data{std::byte{1}, std::byte{2}}), "[0, 0]");
}

TEST(JsonParsing, KeepsKindsApart) {
    const auto parsed = [](const char* text) {
        scenario::Words words(text);
        return takeValue(words);
    };
    EXPECT_EQ(parsed("true"), Value(true));
    EXPECT_EQ(parsed("1"), Value(std::int64_t{1}));
    EXPECT_EQ(parsed("-1"), Value(std::int64_t{-1}));
    EXPECT_EQ(parsed("1.0"), Value(1.0));
    EXPECT_EQ(parsed("1e2"), Value(100.0));
    EXPECT_EQ(parsed("9223372036854775808"), Value(std::uint64_t{9223372036854775808U}));
    EXPECT_EQ(parsed(R"("é\n")"), Value("é\n"));
    EXPECT_EQ(parsed(R"({"a": [1, "b"]})"), (Dictionary{{"a", Array{std::int64_t{1}, "b"}}}));
    EXPECT_FALSE(parsed("null").exists());
}

} // namespace qbsp::simulated

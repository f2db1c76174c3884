#include "simulated/Json.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace qbsp::simulated {

using platform::Array;
using platform::Dictionary;
using platform::Value;

TEST(JsonText, HasASpaceAfterEachCommaAndColon) {
    EXPECT_EQ(json(Dictionary{{"b", Array{1, true, Value()}}, {"a", Dictionary{}}, {"B", Array{}}}),
              R"({"B": [], "a": {}, "b": [1, true, null]})");
}

TEST(JsonText, EscapesOnlyWhatItMust) {
    EXPECT_EQ(json("\"\\/\b\f\n\r\t\x01\x1f\x7f é🗂"),
              "\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0001\\u001f\x7f é🗂\"");
}

TEST(JsonText, OfWholeNumbersHasAllDigits) {
    EXPECT_EQ(json(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(json(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
    EXPECT_EQ(json(-1), "-1");
    EXPECT_EQ(json(4294967295U), "4294967295");
}

TEST(JsonText, OfRealsIsTheShortestThatReadsBackTheSame) {
    for (const auto& [real, text] : {std::pair{0.0, "0.0"},
                                     {-0.0, "-0.0"},
                                     {1.0, "1.0"},
                                     {2.5, "2.5"},
                                     {-12.75, "-12.75"},
                                     {0.1, "0.1"},
                                     {1e15, "1000000000000000.0"},
                                     {123456789012345678.0, "1.2345678901234568e+17"},
                                     {1e16, "1e+16"},
                                     {1e20, "1e+20"},
                                     {0.0001, "0.0001"},
                                     {0.00001, "1e-05"},
                                     {1.5e-7, "1.5e-07"},
                                     {1e100, "1e+100"},
                                     {5e-324, "5e-324"}})
        EXPECT_EQ(json(real), text);
}

TEST(JsonText, OfAMissingTextIsNull) {
    EXPECT_EQ(jsonTextOrNull(std::nullopt), "null");
    EXPECT_EQ(jsonTextOrNull(""), "\"\"");
}

TEST(JsonText, OfDatesAndDataIsPrintable) {
    EXPECT_EQ(json(platform::Date{1.5}), "1.5");
    EXPECT_EQ(json(platform::Data{std::byte{1}, std::byte{2}}), "[0, 0]");
}

TEST(JsonParsing, KeepsKindsApart) {
    EXPECT_EQ(parseJson("true"), Value(true));
    EXPECT_EQ(parseJson("1"), Value(std::int64_t{1}));
    EXPECT_EQ(parseJson("-1"), Value(std::int64_t{-1}));
    EXPECT_EQ(parseJson("1.0"), Value(1.0));
    EXPECT_EQ(parseJson("1e2"), Value(100.0));
    EXPECT_EQ(parseJson("9223372036854775808"), Value(std::uint64_t{9223372036854775808U}));
    EXPECT_EQ(parseJson(R"("é\n")"), Value("é\n"));
    EXPECT_EQ(parseJson(R"({"a": [1, "b"]})"), (Dictionary{{"a", Array{std::int64_t{1}, "b"}}}));
    EXPECT_FALSE(parseJson("null").exists());
}

TEST(JsonParsing, RefusesWhatIsNoValue) {
    for (const char* const text : {"", "{", "tru", "01", "1 2", "{\"a\": null}", "[null]", "'a'", "1e999",
                                   "18446744073709551616", "-9223372036854775809", "[1,]", "NaN"})
        EXPECT_THROW(std::ignore = parseJson(text), std::invalid_argument) << text;
}

TEST(JsonParsing, RefusesValuesNestedTooDeeply) {
    const std::string deep = std::string(5000, '[') + std::string(5000, ']');

    EXPECT_THROW(std::ignore = parseJson(deep), std::invalid_argument);
    EXPECT_NO_THROW(std::ignore = parseJson(std::string(100, '[') + std::string(100, ']')));
}

TEST(Utf8, IsToldFromOtherBytes) {
    EXPECT_TRUE(isUtf8("é🗂"));
    EXPECT_FALSE(isUtf8("\xFF"));
    EXPECT_FALSE(isUtf8("\xC3"));
}

} // namespace qbsp::simulated

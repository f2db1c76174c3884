#include "scenario/Json.h"

#include "Refused.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace qbsp::scenario {

TEST(ScenarioJson, EscapesOnlyWhatItMust) {
    EXPECT_EQ(jsonText("\"\\/\b\f\n\r\t\x01\x1f\x7f é🗂"),
              "\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0001\\u001f\x7f é🗂\"");
}

TEST(ScenarioJson, WritesAMissingTextAsNull) {
    EXPECT_EQ(jsonTextOrNull(std::nullopt), "null");
    EXPECT_EQ(jsonTextOrNull(""), "\"\"");
}

TEST(ScenarioJson, WritesBytesThatAreNotUtf8AsReplaced) {
    EXPECT_EQ(jsonText("a\xFF"), "\"a\uFFFD\"");
}

TEST(ScenarioJson, WritesRealsInTheShortestFormThatReadsBackTheSame) {
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
        EXPECT_EQ(jsonReal(real), text);
}

TEST(ScenarioJson, HasASpaceAfterEachCommaAndColon) {
    EXPECT_EQ(jsonArray({}), "[]");
    EXPECT_EQ(jsonArray({"1", "true"}), "[1, true]");
    EXPECT_EQ(jsonObject({}), "{}");
    EXPECT_EQ(jsonObject({{"b", jsonBoolean(true)}, {"B", jsonBoolean(false)}, {"a\"", "{}"}}),
              R"({"B": false, "a\"": {}, "b": true})");
}

TEST(ScenarioJson, ReadsWholeNumbersOf64Bits) {
    EXPECT_EQ(parseJson("18446744073709551615").get<std::uint64_t>(), UINT64_MAX);
    EXPECT_EQ(parseJson("-9223372036854775808").get<std::int64_t>(), INT64_MIN);
}

TEST(ScenarioJson, RefusesNumbersThatDoNotFit) {
    for (const char* const text : {"18446744073709551616", "-9223372036854775809", "[99999999999999999999]"})
        EXPECT_EQ(refused([&] { return parseJson(text); }),
                  "malformed value: a number that 64 bits cannot hold")
            << text;
}

TEST(ScenarioJson, RefusesANullInsideAValue) {
    EXPECT_TRUE(parseJson("null").is_null());
    for (const char* const text : {"[null]", R"({"a": null})", R"([{"a": [1, null]}])"})
        EXPECT_EQ(refused([&] { return parseJson(text); }), "malformed value: null inside a value") << text;
}

TEST(ScenarioJson, RefusesWhatIsNoValue) {
    for (const char* const text : {"", "{", "tru", "01", "1 2", "'a'", "1e999", "[1,]", "NaN", "+1", ".5",
                                   "1.", "{a: 1}", "\"a\nb\"", "// a\n1", "\"\\ud800\"", "\"\xFF\""})
        EXPECT_EQ(refused([&] { return parseJson(text); }), "malformed value: not a JSON value") << text;
}

TEST(ScenarioJson, RefusesValuesNestedTooDeeply) {
    const auto nested = [](std::size_t depth) {
        return refused([=] { return parseJson(std::string(depth, '[') + std::string(depth, ']')); });
    };
    EXPECT_EQ(nested(200), "");
    EXPECT_EQ(nested(201), "malformed value: nested too deeply");
    EXPECT_EQ(nested(100000), "malformed value: nested too deeply");
}

TEST(ScenarioJson, TellsUtf8FromOtherBytes) {
    EXPECT_TRUE(isUtf8("é🗂"));
    for (const char* const bytes : {"\xFF", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80"})
        EXPECT_FALSE(isUtf8(bytes));
}

} // namespace qbsp::scenario

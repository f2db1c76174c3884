#include "scenario/Words.h"

#include "Refused.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdint>
#include <limits>

namespace qbsp::scenario {

TEST(ScenarioWords, AreSeparatedByOneOrMoreSpaces) {
    Words words("find   a  b");
    EXPECT_EQ(words.word(), "find");
    EXPECT_EQ(words.text(), "a");
    EXPECT_FALSE(words.atEnd());
    EXPECT_EQ(words.text(), "b");
    EXPECT_TRUE(words.atEnd());
}

TEST(ScenarioWords, AreSeparatedByNothingElse) {
    EXPECT_EQ(Words("a\tb\r").word(), "a\tb\r");
    EXPECT_EQ(Words("a\"b c\"").word(), "a\"b");
}

TEST(ScenarioWords, HoldSpacesWhereTheyAreJsonStrings) {
    Words words(R"("a b" "\"c\\ " d)");
    EXPECT_EQ(words.text(), "a b");
    EXPECT_EQ(words.text(), "\"c\\ ");
    EXPECT_EQ(words.text(), "d");
}

TEST(ScenarioWords, AreReadWithEveryEscapeOfJson) {
    EXPECT_EQ(Words(R"("\"\\\/\b\f\n\r\t")").text(), "\"\\/\b\f\n\r\t");
    EXPECT_EQ(Words(R"("\u0041\u00e9\u20AC")").text(), "Aé€");
    EXPECT_EQ(Words(R"("\ud83d\uddc2")").text(), "🗂");
}

TEST(ScenarioWords, AreRefusedWithLoneSurrogates) {
    for (const char* const line : {R"("\ud83d")", R"("\udc00")", R"("\ud83d\u0041")", R"("\ud83dA")",
                                   R"("\ud83d\ud83d")", R"("\udc00\ud83d")"})
        EXPECT_EQ(refused([&] { return Words(line).text(); }), "malformed value: not a JSON value") << line;
}

TEST(ScenarioWords, AreRefusedWithMalformedEscapes) {
    for (const char* const line : {R"("\x41")", R"("\u12")", R"("\u12G4")", R"("\u")", R"("\ ")", R"("\'")"})
        EXPECT_EQ(refused([&] { return Words(line).text(); }), "malformed value: not a JSON value") << line;
}

TEST(ScenarioWords, AreRefusedWithControlCharactersInAString) {
    EXPECT_EQ(refused([] { return Words("\"a\tb\"").text(); }), "malformed value: not a JSON value");
}

TEST(ScenarioWords, AreRefusedWhereAStringHasNoEnd) {
    for (const char* const line : {"\"", "\"a", "\"a\\\"", "\"a\\"})
        EXPECT_EQ(refused([&] { return Words(line).text(); }), "a string without an end") << line;
}

TEST(ScenarioWords, AreRefusedWhereAStringDoesNotEndItsArgument) {
    for (const char* const line : {R"("a"b)", R"("a""b")"})
        EXPECT_EQ(refused([&] { return Words(line).text(); }), "a string that does not end its argument")
            << line;
}

TEST(ScenarioWords, AreRefusedWhereOneIsMissing) {
    EXPECT_EQ(refused([] { return Words("").word(); }), "an argument is missing");
    EXPECT_EQ(refused([] { return Words("").text(); }), "an argument is missing");
    EXPECT_EQ(refused([] { return Words("").signed64(); }), "an argument is missing");
    EXPECT_EQ(refused([] { return Words("").value(); }), "a value is missing");
}

TEST(ScenarioWords, AreRefusedWhereSomethingIsLeftOver) {
    const auto finish = [](const char* line) {
        return refused([&] {
            Words words(line);
            static_cast<void>(words.word());
            words.finish();
            return true;
        });
    };
    EXPECT_EQ(finish("select"), "");
    EXPECT_EQ(finish("select \"a\" b"), R"(something is left over: "\"a\" b")");
}

TEST(ScenarioWords, AreWordsOnlyUnquoted) {
    const std::string problem = "a string where a word is expected: ";
    EXPECT_EQ(refused([] { return Words(R"("select")").word(); }), problem + R"("select")");
    EXPECT_EQ(refused([] { return Words(R"("true")").boolean(); }), problem + R"("true")");
    EXPECT_EQ(refused([] { return Words(R"("1")").signed64(); }), problem + R"("1")");
    EXPECT_EQ(refused([] { return Words(R"("1")").unsigned64(); }), problem + R"("1")");
    EXPECT_EQ(refused([] { return Words(R"("1")").signed32(); }), problem + R"("1")");
    EXPECT_EQ(refused([] { return Words(R"("1")").seconds(); }), problem + R"("1")");
    EXPECT_EQ(refused([] { return Words(R"("a")").oneOf({"a"}); }), problem + R"("a")");
}

TEST(ScenarioWords, SayWhetherTheyWereQuoted) {
    EXPECT_TRUE(Words(R"("full")").argument().quoted);
    EXPECT_FALSE(Words("full").argument().quoted);
    EXPECT_EQ(Words(R"("null")").textOrNull(), "null");
    EXPECT_EQ(Words("null").textOrNull(), std::nullopt);
    EXPECT_EQ(Words("nullx").textOrNull(), "nullx");
}

TEST(ScenarioWords, AreOnlyTheExpectedOnes) {
    EXPECT_EQ(Words("note").oneOf({"clip", "note"}), "note");
    EXPECT_EQ(refused([] { return Words("Note").oneOf({"clip", "note"}); }), R"(an unexpected word: "Note")");
    EXPECT_TRUE(Words("true").boolean());
    EXPECT_FALSE(Words("false").boolean());
    EXPECT_EQ(refused([] { return Words("YES").boolean(); }), R"(an unexpected word: "YES")");
}

TEST(ScenarioNumbers, AreDecimalOrHexadecimal) {
    EXPECT_EQ(Words("9223372036854775807").signed64(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(Words("-9223372036854775808").signed64(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(Words("-0x8000000000000000").signed64(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(Words("18446744073709551615").unsigned64(), std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(Words("0xFFFFffffFFFFffff").unsigned64(), std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(Words("-0").unsigned64(), 0U);
    EXPECT_EQ(Words("-2147483648").signed32(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Words("0x7fffffff").signed32(), std::numeric_limits<std::int32_t>::max());
}

TEST(ScenarioNumbers, AreRefusedWhereTheyAreNone) {
    for (const std::string word :
         {"x", "-", "0x", "-0x", "+1", "1.0", "1e3", "--1", "0x-1", "1a", "0xg", "0X1"}) {
        const std::string problem = "not a whole number of 64 bits: \"" + word + "\"";
        EXPECT_EQ(refused([&] { return Words(word).signed64(); }), problem);
        EXPECT_EQ(refused([&] { return Words(word).unsigned64(); }), problem);
        EXPECT_EQ(refused([&] { return Words(word).signed32(); }), problem);
    }
}

TEST(ScenarioNumbers, AreRefusedWhereTheyDoNotFit) {
    EXPECT_EQ(refused([] { return Words("12345678901234567890").signed64(); }),
              R"(not a signed number of 64 bits: "12345678901234567890")");
    EXPECT_EQ(refused([] { return Words("9223372036854775808").signed64(); }),
              R"(not a signed number of 64 bits: "9223372036854775808")");
    EXPECT_EQ(refused([] { return Words("-9223372036854775809").signed64(); }),
              R"(not a signed number of 64 bits: "-9223372036854775809")");
    EXPECT_EQ(refused([] { return Words("99999999999999999999").unsigned64(); }),
              R"(not a whole number of 64 bits: "99999999999999999999")");
    EXPECT_EQ(refused([] { return Words("0x10000000000000000").unsigned64(); }),
              R"(not a whole number of 64 bits: "0x10000000000000000")");
    EXPECT_EQ(refused([] { return Words("-1").unsigned64(); }), R"(not an unsigned number of 64 bits: "-1")");
    EXPECT_EQ(refused([] { return Words("2147483648").signed32(); }),
              "not a signed number of 32 bits: 2147483648");
    EXPECT_EQ(refused([] { return Words("-0x80000001").signed32(); }),
              "not a signed number of 32 bits: -2147483649");
}

TEST(ScenarioNumbers, OfSecondsAreDigitsWithAPoint) {
    EXPECT_EQ(Words("0.75").seconds(), *Decimal::parse("0.75"));
    for (const std::string word : {"-1", "1e3", ".5", "1.", "0x1", "inf"})
        EXPECT_EQ(refused([&] { return Words(word).seconds(); }),
                  "not a number of seconds: \"" + word + "\"");
}

TEST(ScenarioValues, AreTheWholeRestOfTheLine) {
    Words words(R"(domain {"a b": [1, 2]})");
    static_cast<void>(words.word());
    EXPECT_EQ(words.value(), nlohmann::json::parse(R"({"a b": [1, 2]})"));
    EXPECT_TRUE(words.atEnd());
    EXPECT_EQ(refused([] { return Words("1 2").value(); }), "malformed value: not a JSON value");
}

} // namespace qbsp::scenario

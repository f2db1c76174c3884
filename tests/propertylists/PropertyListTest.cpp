#include "propertylists/PropertyList.h"

#include "SampleLists.h"
#include "UnreadableLists.h"
#include "propertylists/PropertyListFormats.h"
#include "propertylists/PropertyListText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace qbsp::propertylists {

using platform::Array;
using platform::Data;
using platform::Date;
using platform::Dictionary;
using platform::Value;

namespace {

using namespace std::string_literals;

Parsed read(const std::string& bytes) {
    return parsedPropertyList(bytes);
}

struct Readable {
    std::string name;
    std::string bytes;
    Value value;
};

class ReadableList : public testing::TestWithParam<Readable> {};

class UnreadableList : public testing::TestWithParam<Unreadable> {};

template <class Row>
std::string nameOf(const testing::TestParamInfo<Row>& row) {
    std::string name = row.param.name;
    for (char& character : name)
        if (std::isalnum(static_cast<unsigned char>(character)) == 0)
            character = '_';
    return name;
}

const std::string list = xmlWith("<dict><key>a</key><true/></dict>");
const Value listValue = Dictionary{{"a", true}};

} // namespace

TEST_P(ReadableList, IsReadAsWhatItSays) {
    const Parsed parsed = read(GetParam().bytes);

    ASSERT_TRUE(std::holds_alternative<Value>(parsed));
    EXPECT_EQ(std::get<Value>(parsed), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Of, ReadableList,
    testing::Values(
        Readable{"XML in UTF-8 with a byte-order mark", "\xEF\xBB\xBF" + list, listValue},
        Readable{"XML in little-endian UTF-16", utf16Of("<?xml version=\"1.0\"?>" + list.substr(38), false),
                 listValue},
        Readable{"XML in big-endian UTF-16", utf16Of("<?xml version=\"1.0\"?>" + list.substr(38), true),
                 listValue},
        Readable{"XML in UTF-16 that says so",
                 utf16Of("<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + list.substr(38), false), listValue},
        Readable{"XML in Latin-1",
                 "<?xml version=\"1.0\" "
                 "encoding=\"ISO-8859-1\"?><plist><dict><key>\xE9</key><true/></dict></plist>",
                 Dictionary{{"é", true}}},
        Readable{"XML after blank lines", "\n\n " + list, listValue},
        Readable{"XML without a declaration", list.substr(38), listValue},
        Readable{
            "XML with comments and a document type",
            "<?xml version=\"1.0\"?><!DOCTYPE plist SYSTEM \"file://localhost/a.dtd\"><!-- a -->"
            "<plist version=\"1.0\"><!-- b --><dict><!-- c --><key>a<!-- d -->b</key><true/></dict></plist>",
            Dictionary{{"ab", true}}},
        Readable{"XML with character data and references",
                 xmlWith("<string><![CDATA[<&]]>&lt;&#65;&#x1F600;</string>"), "<&<A\xF0\x9F\x98\x80"},
        Readable{"XML with an emoji as GNUstep writes it", xmlWith("<string>\\UD83D\\UDE00\\U00e9</string>"),
                 "\xF0\x9F\x98\x80é"},
        Readable{"XML with half an emoji, which stays the text that it is",
                 xmlWith("<string>\\UD83D\\U0041</string>"), "\\UD83DA"},
        Readable{"XML with what only looks like an escape", xmlWith("<string>\\Users \\U12 \\U</string>"),
                 "\\Users \\U12 \\U"},
        Readable{"XML with odd integers",
                 xmlWith("<array><integer> "
                         "+7\n</integer><integer>0xFF</integer><integer>-9223372036854775808</integer>"
                         "<integer>18446744073709551615</integer><integer>4294967295</integer></array>"),
                 Array{7, 255, std::numeric_limits<std::int64_t>::min(),
                       std::numeric_limits<std::uint64_t>::max(), std::int64_t{4294967295}}},
        Readable{"XML with odd reals",
                 xmlWith("<array><real>+infinity</real><real>-1e3</real><real>.5</real></array>"),
                 Array{std::numeric_limits<double>::infinity(), -1000.0, 0.5}},
        Readable{"XML with dates near and far",
                 xmlWith("<array><date>2001-01-01T00:00:00Z</date><date>2001-01-01T00:00:00.25Z</date>"
                         "<date>2000-12-31 23:00:00 -0100</date><date>12001-01-01T00:00:00Z</date>"
                         "<date>-0001-01-01T00:00:00Z</date></array>"),
                 Array{Date{0}, Date{0.25}, Date{0}, Date{315569520000}, Date{-63177062400}}},
        Readable{"XML with data in lines", xmlWith("<data>\n\tAP8\n\tH\n</data>"),
                 Data{std::byte{0}, std::byte{255}, std::byte{7}}},
        Readable{"XML with a key twice, the last of which counts",
                 xmlWith("<dict><key>a</key><false/><key>a</key><true/></dict>"), listValue},
        Readable{"XML as deep as may be", xmlWith(repeated("<array>", 512) + repeated("</array>", 512)),
                 [] {
                     Value value = Array{};
                     for (int level = 1; level < 512; ++level)
                         value = Array{value};
                     return value;
                 }()},
        Readable{"text as GNUstep writes it",
                 "{ a = \"b\\n\\\"\\U00e9\\UD83D\\UDE00\\351\"; \"c d\" = (<*I-5>, <*BY>, <*BN>, <*R0.5>, "
                 "<*D2001-01-01 00:00:00 +0000>, <0aFF 01>, <[AP8=]>, ); e = {}; }",
                 Dictionary{{"a", "b\n\"é\xF0\x9F\x98\x80é"},
                            {"c d", Array{-5, true, false, 0.5, Date{0},
                                          Data{std::byte{10}, std::byte{255}, std::byte{1}},
                                          Data{std::byte{0}, std::byte{255}}}},
                            {"e", Dictionary{}}}},
        Readable{"text with comments and without a last semicolon", "// a\n{ /* b */ a = x.y-z/w }\n// end\n",
                 Dictionary{{"a", "x.y-z/w"}}},
        Readable{"binary with an integer of sixteen bytes",
                 binaryOf({"\x14" + std::string(8, '\0') + std::string(8, '\xFF')}),
                 std::numeric_limits<std::uint64_t>::max()},
        Readable{"binary with a negative integer of sixteen bytes",
                 binaryOf({"\x14" + std::string(16, '\xFF')}), -1},
        Readable{"binary with a short real", binaryOf({"\x22\x3F\x00\x00\x00"s}), 0.5},
        Readable{"binary with an integer of one byte, which has no sign", binaryOf({"\x10\xFF"}), 255},
        Readable{"binary with a text of sixteen bits", binaryOf({"\x63\xD8\x3D\xDE\x00\x00\x41"s}),
                 "\xF0\x9F\x98\x80"
                 "A"}),
    nameOf<Readable>);

TEST_P(UnreadableList, IsRefusedForTheRightReason) {
    const Parsed parsed = read(GetParam().bytes);

    ASSERT_TRUE(std::holds_alternative<Fault>(parsed));
    EXPECT_EQ(wordsFor(std::get<Fault>(parsed)), wordsFor(GetParam().fault));
}

INSTANTIATE_TEST_SUITE_P(Of, UnreadableList, testing::ValuesIn(unreadableLists()), nameOf<Unreadable>);

TEST(PropertyList, OfEveryKindIsReadAsItWasWrittenInEachFormat) {
    const Value value = everyKind();
    for (const std::string& bytes : {xmlBytes(value), binaryBytes(value), propertyListBytes(value)}) {
        const Parsed parsed = read(bytes);
        ASSERT_TRUE(std::holds_alternative<Value>(parsed));
        EXPECT_EQ(std::get<Value>(parsed), value);
    }
}

TEST(PropertyList, IsXMLWhereXMLHasItAndBinaryWhereItHasNot) {
    EXPECT_TRUE(propertyListBytes(everyKind()).starts_with("<?xml"));
    for (const double instant : {0.5, -6e66, 6e66, 1e300, -63145526400.0 - 86400 * 400, 252423993600.0,
                                 std::numeric_limits<double>::infinity()}) {
        const Value value = Dictionary{{"a", Array{Date{instant}}}};
        const std::string bytes = propertyListBytes(value);
        EXPECT_TRUE(bytes.starts_with("bplist00"));
        EXPECT_EQ(std::get<Value>(read(bytes)), value);
    }
}

TEST(PropertyList, KeepsEveryDayOfTheCalendarsYears) {
    for (double day = -730485; day < 2921574; day += 97.0 + 1.0 / 86400) {
        const Date date{std::trunc(day * 86400)};
        const auto text = textOfDate(date);
        ASSERT_TRUE(text) << day;
        EXPECT_EQ(dateFrom(*text), Value(date)) << *text;
    }
}

TEST(PropertyList, HoldsNoValueOfAKeyThatHasNone) {
    const Value value = Dictionary{{"a", Value()}, {"b", Array{Value(), true}}};
    for (const std::string& bytes : {xmlBytes(value), binaryBytes(value)})
        EXPECT_EQ(std::get<Value>(read(bytes)), Value(Dictionary{{"b", Array{true}}}));
}

TEST(PropertyList, IsReadOrRefusedWhereverItIsCutOrChanged) {
    const std::string whole[] = {xmlBytes(everyKind()), binaryBytes(everyKind()),
                                 "{ a = (<*I5>, \"b\\U00e9\"); /* c */ }"};
    for (const std::string& bytes : whole)
        for (std::size_t place = 0; place < bytes.size(); ++place) {
            std::string damaged = bytes;
            damaged[place] = static_cast<char>(damaged[place] ^ 0x11);
            std::ignore = read(bytes.substr(0, place));
            std::ignore = read(damaged);
        }
}

} // namespace qbsp::propertylists

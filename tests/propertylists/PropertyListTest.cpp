#include "propertylists/PropertyList.h"

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

std::string xmlWith(const std::string& root) {
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)" + root + "</plist>";
}

std::string repeated(const std::string& text, std::size_t times) {
    std::string all;
    for (std::size_t time = 0; time < times; ++time)
        all += text;
    return all;
}

/// The text in UTF-16, after a byte-order mark; its characters are ASCII.
std::string utf16Of(const std::string& text, bool bigEndian) {
    std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char character : text) {
        if (bigEndian)
            bytes += '\0';
        bytes += character;
        if (!bigEndian)
            bytes += '\0';
    }
    return bytes;
}

/// A binary list of these objects, the last of which is the root; offsets and references have one byte.
std::string binaryOf(const std::vector<std::string>& objects) {
    std::string bytes(binaryBeginning);
    std::string table;
    for (const std::string& object : objects) {
        table += static_cast<char>(bytes.size());
        bytes += object;
    }
    const auto number = [](std::size_t value) {
        return std::string(7, '\0') + static_cast<char>(value);
    };
    return bytes + table + std::string(6, '\0') + "\x01\x01" + number(objects.size()) +
           number(objects.size() - 1) + number(bytes.size());
}

/// A binary list of that many levels, each of which holds the one below so many times; numbers have two
/// bytes.
std::string levelsOf(std::size_t levels, std::size_t times, const std::string& lowest) {
    std::string bytes(binaryBeginning);
    std::string table;
    const auto two = [](std::size_t value) {
        return ""s + static_cast<char>(value >> 8U) + static_cast<char>(value);
    };
    const auto add = [&](const std::string& object) {
        table += two(bytes.size());
        bytes += object;
    };
    add(lowest);
    for (std::size_t level = 0; level < levels; ++level)
        add(static_cast<char>(0xA0 + times) + repeated(two(level), times));
    const auto number = [&](std::size_t value) {
        return std::string(6, '\0') + two(value);
    };
    return bytes + table + std::string(6, '\0') + "\x02\x02" + number(levels + 1) + number(levels) +
           number(bytes.size());
}

std::string changed(std::string bytes, std::size_t fromEnd, char value) {
    bytes[bytes.size() - fromEnd] = value;
    return bytes;
}

/// A value with every kind that a property list has, as it comes out of a file.
Dictionary everyKind() {
    return {{"text", "Größe <&> \"quoted\"\n\r\t漢字 \xF0\x9F\x98\x80"},
            {"empty", ""},
            {"escape", "\\U0041 \\\\U00 \\u0041 \\UD83D\\UDE00"},
            {"controls", "\x01\x1F\x7F"s + '\0' + "\xEF\xBF\xBF\xEF\xBF\xBE"},
            {"yes", true},
            {"no", false},
            {"integer", std::int32_t{-5}},
            {"wide", std::int64_t{1} << 40U},
            {"lowest", std::numeric_limits<std::int64_t>::min()},
            {"beyond", std::uint64_t{1} << 63U},
            {"highest", std::numeric_limits<std::uint64_t>::max()},
            {"real", 0.30000000000000004},
            {"tiny", std::numeric_limits<double>::denorm_min()},
            {"infinite", -std::numeric_limits<double>::infinity()},
            {"date", Date{86400}},
            {"data", Data{std::byte{0}, std::byte{255}, std::byte{7}, std::byte{9}}},
            {"no data", Data{}},
            {"array", Array{true, "text", Array{}, Dictionary{{"", 1}}}},
            {"Ünïcode.app", Dictionary{{"Clock", false}}}};
}

Parsed read(const std::string& bytes) {
    return parsedPropertyList(bytes);
}

struct Readable {
    std::string name;
    std::string bytes;
    Value value;
};

class ReadableList : public testing::TestWithParam<Readable> {};

struct Unreadable {
    std::string name;
    std::string bytes;
    Fault fault = Fault::notAPropertyList;
};

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

INSTANTIATE_TEST_SUITE_P(
    Of, UnreadableList,
    testing::Values(
        Unreadable{"nothing at all", ""}, Unreadable{"blanks alone", " \n\t "},
        Unreadable{"a zero byte", "\0"s},
        Unreadable{"zeros, as after a crash of the machine", std::string(4096, '\0')},
        Unreadable{"prose", "this is { no property list"}, Unreadable{"a text without a container", "text"},
        Unreadable{"invalid UTF-8", "{ a = \"\xFF\xFE\"; }"},
        Unreadable{"an overlong zero", "{ a = \"\xC0\x80\"; }"},
        Unreadable{"half a character", "{ a = \"\xF0\x9F"},
        // XML
        Unreadable{"XML that was cut short", list.substr(0, list.size() - 10)},
        Unreadable{"XML that was cut in a tag", list.substr(0, 60)},
        Unreadable{"an XML declaration alone", "<?xml version=\"1.0\"?>"},
        Unreadable{"an empty list", xmlWith("")},
        Unreadable{"another kind of XML", "<?xml version=\"1.0\"?><html/>"},
        Unreadable{"text after the list", list + "more"}, Unreadable{"a second list", list + list.substr(38)},
        Unreadable{"two roots", xmlWith("<dict/><dict/>"), Fault::moreThanOneRoot},
        Unreadable{"a list in a list", xmlWith("<plist><dict/></plist>")},
        Unreadable{"a list in an array", xmlWith("<array><plist/></array>")},
        Unreadable{"text between elements", xmlWith("<dict>text<key>a</key><true/></dict>")},
        Unreadable{"an element that is none", xmlWith("<array><set/></array>")},
        Unreadable{"an element in a text", xmlWith("<string>a<true/></string>")},
        Unreadable{"a key without a value", xmlWith("<dict><key>a</key></dict>")},
        Unreadable{"a value without a key", xmlWith("<dict><true/></dict>")},
        Unreadable{"two keys in a row", xmlWith("<dict><key>a</key><key>b</key><true/></dict>")},
        Unreadable{"a key in an array", xmlWith("<array><key>a</key></array>")},
        Unreadable{"a key alone", xmlWith("<key>a</key>")},
        Unreadable{"tags that cross", xmlWith("<array><dict></array></dict>")},
        Unreadable{"an integer that is none", xmlWith("<integer>seven</integer>")},
        Unreadable{"an empty integer", xmlWith("<integer/>")},
        Unreadable{"an integer of 65 bits", xmlWith("<integer>18446744073709551616</integer>")},
        Unreadable{"an integer below 64 bits", xmlWith("<integer>-9223372036854775809</integer>")},
        Unreadable{"a real that is none", xmlWith("<real>1.2.3</real>")},
        Unreadable{"a date that is none", xmlWith("<date>yesterday</date>")},
        Unreadable{"a thirteenth month", xmlWith("<date>2001-13-01T00:00:00Z</date>")},
        Unreadable{"a date of a hundred digits",
                   xmlWith("<date>" + std::string(100, '9') + "-01-01T00:00:00Z</date>")},
        Unreadable{"data that are none", xmlWith("<data>***</data>")},
        Unreadable{"an entity that nobody declared", xmlWith("<string>&a;</string>")},
        Unreadable{
            "an entity that nobody declared, with a document type elsewhere",
            "<?xml version=\"1.0\"?><!DOCTYPE plist SYSTEM \"a.dtd\"><plist><string>&a;</string></plist>"},
        Unreadable{"entities that stand for a billion",
                   "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b "
                   "\"&a;&a;&a;&a;&a;&a;\">"
                   "<!ENTITY c \"&b;&b;&b;&b;&b;&b;\">]><plist version=\"&c;\"><string>&c;</string></plist>"},
        Unreadable{"an entity that names a file",
                   "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY a SYSTEM \"file:///etc/passwd\">]>"
                   "<plist><string>&a;</string></plist>"},
        Unreadable{"a character that XML does not have", xmlWith("<string>\x01</string>")},
        Unreadable{"a reference to a character that XML does not have", xmlWith("<string>&#1;</string>")},
        Unreadable{"invalid UTF-8 in XML", xmlWith("<string>\xFF</string>")},
        Unreadable{"XML in an encoding that is none",
                   "<?xml version=\"1.0\" encoding=\"none\"?><plist><dict/></plist>"},
        Unreadable{"half of UTF-16",
                   utf16Of("<?xml version=\"1.0\"?>" + list.substr(38), false).substr(0, 81)},
        Unreadable{"XML one level too deep", xmlWith(repeated("<array>", 513) + repeated("</array>", 513)),
                   Fault::nestedTooDeeply},
        Unreadable{"XML a hundred thousand levels deep", xmlWith(repeated("<array>", 100'000)),
                   Fault::nestedTooDeeply},
        Unreadable{"dictionaries a hundred thousand levels deep",
                   xmlWith(repeated("<dict><key>a</key>", 100'000)), Fault::nestedTooDeeply},
        Unreadable{"tags that are none, a hundred thousand levels deep",
                   "<?xml?>" + repeated("<a>", 100'000)},
        // Text
        Unreadable{"a dictionary without its end", "{ a = b;"},
        Unreadable{"an array without its end", "( a, b"}, Unreadable{"brackets that cross", "{ a = ( b }; )"},
        Unreadable{"a dictionary without a value", "{ a = ; }"},
        Unreadable{"a dictionary without an equals sign", "{ a b; }"},
        Unreadable{"an array without commas", "( a b )"}, Unreadable{"an array of commas", "( , )"},
        Unreadable{"a key that is a container", "{ ( a ) = b; }"},
        Unreadable{"a quotation without its end", "{ a = \"b; }"},
        Unreadable{"an escape without its end", "{ a = \"\\"},
        Unreadable{"half an emoji as an escape", "{ a = \"\\UD83D\"; }"},
        Unreadable{"a comment without its end", "{ a = b; /* c }"},
        Unreadable{"a typed value of no type", "( <*X5> )"},
        Unreadable{"a typed value without its end", "( <*I5 )"},
        Unreadable{"a typed integer that is none", "( <*Ix> )"},
        Unreadable{"a flag that is neither", "( <*BQ> )"}, Unreadable{"half a byte", "( <0ab> )"},
        Unreadable{"bytes that are none", "( <xy> )"},
        Unreadable{"two dictionaries", "{ a = b; } { c = d; }", Fault::moreThanOneRoot},
        Unreadable{"an integer of a million digits", "( <*I" + std::string(1'000'000, '9') + "> )"},
        Unreadable{"two hundred thousand brackets", std::string(200'000, '('), Fault::nestedTooDeeply},
        Unreadable{"two hundred thousand braces", repeated("{a=", 200'000), Fault::nestedTooDeeply},
        Unreadable{"brackets behind what is no comment", repeated("(a//,", 3) + repeated("(", 600),
                   Fault::nestedTooDeeply},
        // Binary
        Unreadable{"the binary beginning alone", "bplist00"},
        Unreadable{"a trailer of zeros", "bplist00" + std::string(40, '\0')},
        Unreadable{"a trailer of ones", "bplist00" + std::string(40, '\xFF')},
        Unreadable{"a binary list that was cut short", binaryBytes(everyKind()).substr(0, 200)},
        Unreadable{"a root beyond the objects", changed(binaryOf({"\x09"}), 9, '\x05')},
        Unreadable{"a table beyond the end", changed(binaryOf({"\x09"}), 1, '\x7F')},
        Unreadable{"more objects than bytes", changed(binaryOf({"\x09"}), 17, '\x7F')},
        Unreadable{"offsets of no bytes", changed(binaryOf({"\x09"}), 26, '\0')},
        Unreadable{"offsets of nine bytes", changed(binaryOf({"\x09"}), 26, '\x09')},
        Unreadable{"references of no bytes", changed(binaryOf({"\x09"}), 25, '\0')},
        Unreadable{"an object of no kind", binaryOf({"\x70"})}, Unreadable{"a null", binaryOf({"\0"s})},
        Unreadable{"a set", binaryOf({"\x09", "\xC1\0"s})},
        Unreadable{"an identifier of an archive", binaryOf({"\x80\x01"})},
        Unreadable{"an integer of 32 bytes", binaryOf({"\x15" + std::string(32, '\x01')})},
        Unreadable{"an integer of 128 bits", binaryOf({"\x14\x01" + std::string(15, '\x01')})},
        Unreadable{"a real of two bytes", binaryOf({"\x21\x01\x01"})},
        Unreadable{"a date of four bytes", binaryOf({"\x32\x01\x01\x01\x01"})},
        Unreadable{"a text longer than the file", binaryOf({"\x5F\x11\x7F\x7F"})},
        Unreadable{"a count that is no integer", binaryOf({"\x5F\x09"})},
        Unreadable{"a count of eight times ones", binaryOf({"\x5F\x13" + std::string(8, '\xFF')})},
        Unreadable{"an array longer than the file", binaryOf({"\xAF\x12\x7F\xFF\xFF\xFF"})},
        Unreadable{"half a character of sixteen bits", binaryOf({"\x61\xD8\x3D"})},
        Unreadable{"an array that names nothing", binaryOf({"\xA1\x09"})},
        Unreadable{"a dictionary with a key that is no text", binaryOf({"\x09", "\xD1\0\0"s})},
        Unreadable{"an array that holds itself", binaryOf({"\xA1\0"s}), Fault::nestedTooDeeply},
        Unreadable{"two dictionaries that hold each other",
                   binaryOf({"\x51"
                             "a",
                             "\xD1\0\x02"s, "\xD1\0\x01"s}),
                   Fault::nestedTooDeeply},
        Unreadable{"a binary list one level too deep", levelsOf(513, 1, "\x09"), Fault::nestedTooDeeply},
        Unreadable{"thirty levels of which each holds the one below twice",
                   levelsOf(30, 2, "\x4F\x11\x3A\x98" + std::string(15000, 'x')), Fault::tooLarge}),
    nameOf<Unreadable>);

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

#include "SampleLists.h"

#include "propertylists/PropertyListFormats.h"

#include <cstdint>
#include <limits>

namespace qbsp::propertylists {

using platform::Array;
using platform::Data;
using platform::Date;
using platform::Dictionary;

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

} // namespace qbsp::propertylists

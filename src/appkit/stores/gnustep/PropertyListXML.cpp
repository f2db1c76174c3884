#include "appkit/stores/gnustep/PropertyListXML.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <ctime>
#include <string_view>
#include <variant>

namespace qbsp::appkit {

using platform::Array;
using platform::Data;
using platform::Date;
using platform::Dictionary;
using platform::Value;

namespace {

constexpr std::time_t referenceDate =
    978307200; // the first of January 2001, in seconds of the system's clock

struct Escape {
    std::string_view text;
    std::string_view xml;
};

constexpr std::array escapes{
    Escape{"&", "&amp;"},
    Escape{"<", "&lt;"},
    Escape{">", "&gt;"},
    Escape{"\r", "&#13;"},             // a bare one is read as a line feed
    Escape{"\\U", "\\U005CU"},         // what looks like GNUstep's escape of a character is none
    Escape{"\xEF\xBF\xBE", "\\UFFFE"}, // XML has neither of these two characters
    Escape{"\xEF\xBF\xBF", "\\UFFFF"},
};

bool isXMLCharacter(char character) {
    return static_cast<unsigned char>(character) >= 0x20 || character == '\t' || character == '\n';
}

std::string codeOf(char control) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(control);
    return {'\\', 'U', '0', '0', digits[code >> 4U], digits[code & 0xfU]};
}

/// Moves the beginning of the text to the XML.
void moveBeginning(std::string_view& text, std::string& xml) {
    const auto* escape =
        std::ranges::find_if(escapes, [&](const Escape& each) { return text.starts_with(each.text); });
    if (escape != escapes.end()) {
        xml += escape->xml;
        text.remove_prefix(escape->text.size());
        return;
    }
    xml += isXMLCharacter(text.front()) ? std::string(1, text.front()) : codeOf(text.front());
    text.remove_prefix(1);
}

std::string element(const std::string& name, std::string_view text) {
    std::string xml = "<" + name + ">";
    while (!text.empty())
        moveBeginning(text, xml);
    return xml + "</" + name + ">\n";
}

std::string base64(const Data& data) {
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const auto byte = [&](std::size_t index) {
        return index < data.size() ? std::to_integer<unsigned>(data[index]) : 0U;
    };
    std::string text;
    for (std::size_t index = 0; index < data.size(); index += 3) {
        const unsigned group = byte(index) << 16 | byte(index + 1) << 8 | byte(index + 2);
        text += digits[group >> 18];
        text += digits[group >> 12 & 0x3f];
        text += index + 1 < data.size() ? digits[group >> 6 & 0x3f] : '=';
        text += index + 2 < data.size() ? digits[group & 0x3f] : '=';
    }
    return text;
}

std::string shortest(double real) {
    std::array<char, 64> digits{};
    const char* end = std::to_chars(digits.begin(), digits.end(), real).ptr;
    return {digits.cbegin(), end};
}

std::string instant(const Date& date) {
    const std::time_t seconds = referenceDate + static_cast<std::time_t>(date.secondsSinceReferenceDate);
    std::tm parts{};
    std::array<char, 32> text{};
    gmtime_r(&seconds, &parts);
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &parts)};
}

std::string xmlOf(const Value& value);

struct Writer {
    std::string operator()(std::monostate) const { return {}; }

    std::string operator()(bool flag) const { return flag ? "<true/>\n" : "<false/>\n"; }

    std::string operator()(double real) const { return element("real", shortest(real)); }

    std::string operator()(const std::string& text) const { return element("string", text); }

    std::string operator()(const Date& date) const { return element("date", instant(date)); }

    std::string operator()(const Data& data) const { return element("data", base64(data)); }

    template <std::integral Integer>
    std::string operator()(Integer integer) const {
        return element("integer", std::to_string(integer));
    }

    std::string operator()(const Array& array) const {
        std::string xml = "<array>\n";
        for (const Value& each : array)
            xml += xmlOf(each);
        return xml + "</array>\n";
    }

    std::string operator()(const Dictionary& dictionary) const {
        std::string xml = "<dict>\n";
        for (const auto& [key, each] : dictionary)
            if (each.exists())
                xml += element("key", key) + xmlOf(each);
        return xml + "</dict>\n";
    }
};

std::string xmlOf(const Value& value) {
    return std::visit(Writer{}, value.kind());
}

} // namespace

std::string propertyListXML(const Value& value) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">\n" +
           xmlOf(value) + "</plist>\n";
}

} // namespace qbsp::appkit

#include "appkit/gnustep/PropertyListXML.h"

#include <charconv>
#include <cstdio>
#include <ctime>

namespace qbsp::appkit {

using platform::Array;
using platform::Data;
using platform::Date;
using platform::Dictionary;
using platform::Value;

namespace {

constexpr std::time_t referenceDate =
    978307200; // the first of January 2001, in seconds of the system's clock

std::string escaped(char character) {
    switch (character) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '\r':
        return "&#13;"; // a bare one is read as a line feed
    case '\t':
    case '\n':
        return {character};
    default:
        break;
    }
    if (static_cast<unsigned char>(character) >= 0x20)
        return {character};
    char code[8];
    std::snprintf(code, sizeof code, "\\U%04X", static_cast<unsigned>(character));
    return code;
}

std::string element(const std::string& name, const std::string& text) {
    std::string xml = "<" + name + ">";
    for (const char character : text)
        xml += escaped(character);
    return xml + "</" + name + ">\n";
}

std::string base64(const Data& data) {
    constexpr const char* digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
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
    char digits[64];
    const auto end = std::to_chars(digits, digits + sizeof digits, real).ptr;
    return {digits, end};
}

std::string instant(const Date& date) {
    const std::time_t seconds = referenceDate + static_cast<std::time_t>(date.secondsSinceReferenceDate);
    std::tm parts{};
    char text[32];
    return {text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", gmtime_r(&seconds, &parts))};
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

#include "propertylists/PropertyListFormats.h"
#include "propertylists/PropertyListText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <string_view>
#include <variant>

namespace qbsp::propertylists {

using platform::Array;
using platform::Data;
using platform::Date;
using platform::Dictionary;
using platform::Value;

namespace {

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

bool mayNeedEscape(char character) {
    return !isXMLCharacter(character) ||
           std::ranges::any_of(escapes, [&](const Escape& each) { return each.text.front() == character; });
}

std::string codeOf(char control) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(control);
    return {'\\', 'U', '0', '0', digits[code >> 4U], digits[code & 0xfU]};
}

/// Moves the beginning of the text to the XML.
void moveBeginning(std::string_view& text, std::string& xml) {
    const auto plain = static_cast<std::size_t>(std::ranges::find_if(text, mayNeedEscape) - text.begin());
    xml += text.substr(0, plain);
    text.remove_prefix(plain);
    if (text.empty())
        return;
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

std::string base64(const Data& data) {
    const auto byte = [&](std::size_t index) {
        return index < data.size() ? std::to_integer<unsigned>(data[index]) : 0U;
    };
    std::string text;
    for (std::size_t index = 0; index < data.size(); index += 3) {
        const unsigned group = byte(index) << 16 | byte(index + 1) << 8 | byte(index + 2);
        text += base64Digits[group >> 18];
        text += base64Digits[group >> 12 & 0x3f];
        text += index + 1 < data.size() ? base64Digits[group >> 6 & 0x3f] : '=';
        text += index + 2 < data.size() ? base64Digits[group & 0x3f] : '=';
    }
    return text;
}

std::string shortest(double real) {
    std::array<char, 64> digits{};
    const char* end = std::to_chars(digits.begin(), digits.end(), real).ptr;
    return {digits.cbegin(), end};
}

/// Appends a value to the XML.
class XMLWriter {
public:
    explicit XMLWriter(std::string& xml) : xml_(xml) {}

    void add(const Value& value) { value.visit(*this); }

    void operator()(std::monostate) {}

    void operator()(bool flag) { xml_ += flag ? "<true/>\n" : "<false/>\n"; }

    void operator()(double real) { addLeaf("real", shortest(real)); }

    void operator()(const std::string& text) { addLeaf("string", text); }

    void operator()(const Date& date) { addLeaf("date", textOfDate(date).value_or("")); }

    void operator()(const Data& data) { addLeaf("data", base64(data)); }

    template <std::integral Integer>
    void operator()(Integer integer) {
        addLeaf("integer", std::to_string(integer));
    }

    void operator()(const Array& array) {
        xml_ += "<array>\n";
        for (const Value& each : array)
            add(each);
        xml_ += "</array>\n";
    }

    void operator()(const Dictionary& dictionary) {
        xml_ += "<dict>\n";
        for (const auto& [key, each] : dictionary) {
            if (!each.exists())
                continue;
            addLeaf("key", key);
            add(each);
        }
        xml_ += "</dict>\n";
    }

private:
    void addLeaf(std::string_view name, std::string_view text) {
        xml_.append("<").append(name).append(">");
        while (!text.empty())
            moveBeginning(text, xml_);
        xml_.append("</").append(name).append(">\n");
    }

    std::string& xml_;
};

} // namespace

std::string xmlBytes(const Value& value) {
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                      "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                      "<plist version=\"1.0\">\n";
    XMLWriter(xml).add(value);
    return xml += "</plist>\n";
}

} // namespace qbsp::propertylists

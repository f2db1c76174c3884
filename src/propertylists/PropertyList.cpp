#include "propertylists/PropertyList.h"

#include "propertylists/PropertyListFormats.h"
#include "propertylists/PropertyListText.h"

#include <algorithm>
#include <array>

namespace qbsp::propertylists {

using platform::Array;
using platform::Date;
using platform::Dictionary;
using platform::Value;

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

bool beginsWithOneOf(std::string_view bytes, const auto& beginnings) {
    return std::ranges::any_of(beginnings, [&](std::string_view each) { return bytes.starts_with(each); });
}

// The XML parser takes any encoding, but no blanks before what says which.
std::string_view withoutLeadingBlanks(std::string_view bytes) {
    if (bytes.starts_with(utf8Mark))
        bytes.remove_prefix(utf8Mark.size());
    return bytes.substr(std::min(bytes.find_first_not_of(" \t\r\n\v\f"), bytes.size()));
}

bool isXML(std::string_view bytes) {
    using namespace std::string_view_literals;
    constexpr std::array beginnings{"<?"sv,       "<!"sv,       "<plist"sv, "<dict"sv,
                                    "\xFE\xFF"sv, "\xFF\xFE"sv, "<\0?\0"sv, "\0<\0?"sv};
    return beginsWithOneOf(bytes, beginnings);
}

/// The next character's bytes are taken from the text; false when they are none.
bool takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    std::uint32_t code = length == 1 ? first : first & (0x7FU >> length);
    for (const char byte : text.substr(1, length - 1))
        code = code << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    std::string same;
    const bool isCharacter = appendCharacter(code, same) && text.starts_with(same);
    text.remove_prefix(isCharacter ? length : 0);
    return isCharacter;
}

bool isUTF8(std::string_view text) {
    while (!text.empty())
        if (!takeCharacter(text))
            return false;
    return true;
}

bool xmlHas(const Value& value) {
    if (const auto* date = value.as<Date>())
        return textOfDate(*date).has_value();
    if (const auto* array = value.as<Array>())
        return std::ranges::all_of(*array, xmlHas);
    if (const auto* dictionary = value.as<Dictionary>())
        return std::ranges::all_of(*dictionary, [](const auto& entry) { return xmlHas(entry.second); });
    return true;
}

} // namespace

std::string_view wordsFor(Fault fault) {
    switch (fault) {
    case Fault::nestedTooDeeply:
        return "is nested too deeply";
    case Fault::moreThanOneRoot:
        return "has more than one root";
    case Fault::tooLarge:
        return "is larger than the limit";
    default:
        return "is not a property list";
    }
}

Parsed parsedPropertyList(std::string_view bytes) {
    if (bytes.starts_with(binaryBeginning))
        return parsedBinary(bytes);
    const std::string_view text = withoutLeadingBlanks(bytes);
    if (isXML(text))
        return parsedXML(text);
    return isUTF8(text) ? parsedText(text) : Fault::notAPropertyList;
}

std::string propertyListBytes(const Value& value) {
    return xmlHas(value) ? xmlBytes(value) : binaryBytes(value);
}

} // namespace qbsp::propertylists

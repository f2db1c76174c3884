#include "appkit/services/gnustep/ComparedCharacters.h"

#import <Foundation/Foundation.h>
#import <GNUstepBase/Unicode.h>

#include <algorithm>
#include <array>
#include <bit>
#include <iterator>
#include <memory>
#include <span>
#include <utility>

namespace qbsp::appkit {

namespace {

/// What GNUstep says of a UTF-16 unit.
struct Unit {
    char16_t lower;   ///< its lower-case form
    bool goesWithOne; ///< with the one before it
    bool hasParts;
};

using Page = std::array<Unit, 256>;

std::unique_ptr<const Page> madePage(char16_t first) {
    auto page = std::make_unique<Page>();
    for (Unit& unit : *page) {
        unit = {uni_tolower(first), uni_isnonsp(first) == YES, uni_is_decomp(first) != nullptr};
        ++first;
    }
    return page;
}

// Asking takes longer than comparing; most texts have characters of a few pages only.
const Unit& unitOf(char16_t unit) {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): the same for all, on one thread.
    static std::array<std::unique_ptr<const Page>, 256> pages;
    auto& page = pages.at(unit >> 8U);
    if (page == nullptr)
        page = madePage(static_cast<char16_t>(unit & 0xFF00U));
    return page->at(unit & 0xFFU);
}

// GNUstep looks for parts from here on, and ends what it has looked through with a zero.
bool isLookedAt(char16_t unit) {
    return unit >= 0xC0;
}

/// Replaces each unit by its parts; those of the first one that has any stay as they are, the others are
/// replaced by theirs in turn. GNUstep does so.
void replaceByParts(std::u16string& units) {
    auto base = static_cast<std::size_t>(std::ranges::find_if(units, isLookedAt) - units.begin());
    while (base < units.size()) {
        std::u16string replaced = units.substr(0, base);
        std::size_t next = std::u16string::npos;
        for (std::size_t index = base; index < units.size(); ++index) {
            const auto* parts = uni_is_decomp(units[index]);
            if (parts == nullptr) {
                replaced += units[index];
                continue;
            }
            next = std::min(next, index + 1);
            for (; *parts != 0; parts = std::next(parts))
                replaced += static_cast<char16_t>(*parts);
        }
        base = next;
        units = std::move(replaced);
    }
}

/// Whether a mark counts once however often it follows itself: from base 1.31 on, as 1.28 does not have it.
bool repeatedMarksCountOnce() {
    static const bool once = [@"e\u0301\u0301" caseInsensitiveCompare:@"e\u0301"] == NSOrderedSame;
    return once;
}

/// Orders marks that follow each other by their classes, and those of one class by their codes.
void orderMarks(std::u16string& units) {
    const auto isMark = [](char16_t unit) {
        return uni_cop(unit) != 0;
    };
    const auto rank = [](char16_t unit) {
        return std::pair(uni_cop(unit), unit);
    };
    for (auto end = units.begin(); end != units.end();) {
        const auto begin = std::find_if(end, units.end(), isMark);
        end = std::find_if_not(begin, units.end(), isMark);
        std::ranges::sort(begin, end, {}, rank);
        if (repeatedMarksCountOnce())
            end = units.erase(std::unique(begin, end), end);
    }
}

void makeComparable(std::u16string& units) {
    const bool endsWithZero = std::ranges::any_of(units, isLookedAt);
    if (units.size() > 1 || unitOf(units.front()).hasParts) {
        replaceByParts(units);
        orderMarks(units);
    }
    if (endsWithZero)
        units += u'\0';
    for (char16_t& unit : units)
        unit = unitOf(unit).lower;
}

bool isASCII(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
}

/// The next character is taken from the text, which is not empty. A byte that belongs to none is one of its
/// own.
char32_t takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const auto length = static_cast<std::size_t>(std::countl_one(first));
    const std::string_view rest = text.substr(1, std::max<std::size_t>(length, 1) - 1);
    const bool isWhole = length >= 2 && length <= 4 && rest.size() == length - 1;
    if (!isWhole || !std::ranges::all_of(rest, isContinuation)) {
        text.remove_prefix(1);
        return first;
    }
    char32_t character = first & (0x7FU >> length);
    for (const char byte : rest)
        character = character << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    text.remove_prefix(length);
    return character;
}

/// As GNUstep's strings leave them out.
std::string_view withoutByteOrderMarks(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    for (int number = 0; number < 2 && text.starts_with(mark); ++number)
        text.remove_prefix(mark.size());
    return text;
}

/// Appends the number, of up to 21 bits, in bytes that have its order among others.
void append(char32_t number, std::string& key) {
    const auto append = [&](char32_t byte) {
        key += static_cast<char>(byte);
    };
    const auto rest = [&](unsigned shift) {
        append(0x80U | (number >> shift & 0x3FU));
    };
    if (number < 0x80) {
        append(number);
        return;
    }
    append(number < 0x10000 ? 0xE0U | number >> 12U : 0xF0U | number >> 18U);
    if (number >= 0x10000)
        rest(12);
    rest(6);
    rest(0);
}

/// Appends what the units of a character make of a key.
void appendCharacter(const std::u16string& units, std::string& key) {
    constexpr char32_t follows = 0x10000; // a character that ends comes before one that has more
    // The zero at the end makes a difference only for a character that becomes one below those that have it,
    // such as the Kelvin sign, which is a letter then.
    const bool dropsZero =
        units.size() > 1 && units.back() == 0 && (units.size() > 2 || isLookedAt(units.front()));
    append(units.front(), key);
    for (const char16_t unit : std::u16string_view(units).substr(1, units.size() - 1 - (dropsZero ? 1 : 0)))
        append(follows + unit, key);
}

void appendInLowerCase(std::string_view ascii, std::string& key) {
    const std::size_t end = key.size();
    key += ascii;
    for (char& letter : std::span(key).subspan(end))
        letter = static_cast<char>(letter + (letter >= 'A' && letter <= 'Z' ? 'a' - 'A' : 0));
}

bool beginsWithMark(std::string_view text) {
    if (text.empty() || isASCII(text.front()))
        return false;
    const char32_t character = takeCharacter(text);
    return character <= 0xFFFF && unitOf(static_cast<char16_t>(character)).goesWithOne;
}

void appendUnits(char32_t character, std::u16string& units) {
    if (character > 0xFFFF)
        units += static_cast<char16_t>(0xD7C0 + (character >> 10U));
    units += static_cast<char16_t>(character > 0xFFFF ? 0xDC00 + (character & 0x3FFU) : character);
}

} // namespace

ComparedCharacters::ComparedCharacters(std::string_view text) : text_(withoutByteOrderMarks(text)) {}

std::u16string ComparedCharacters::take() {
    std::u16string units;
    do
        appendUnits(takeCharacter(text_), units);
    while (beginsWithMark(text_));
    makeComparable(units);
    return units;
}

std::string_view ComparedCharacters::takeASCII() {
    auto length = static_cast<std::size_t>(std::ranges::find_if_not(text_, isASCII) - text_.begin());
    if (beginsWithMark(text_.substr(length)) && length > 0)
        --length;
    const std::string_view taken = text_.substr(0, length);
    text_.remove_prefix(length);
    return taken;
}

std::string sortKey(std::string_view text) {
    std::string key;
    for (ComparedCharacters characters(text); !characters.atEnd();) {
        appendInLowerCase(characters.takeASCII(), key);
        if (!characters.atEnd())
            appendCharacter(characters.take(), key);
    }
    return key;
}

} // namespace qbsp::appkit

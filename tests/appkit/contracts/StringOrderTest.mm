#include "appkit/bridge/Strings.h"
#include "appkit/services/StringComparison.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iomanip>
#include <random>
#include <sstream>
#include <string>
#include <vector>

// The adapter orders texts without making the platform's strings; the platform's strings say how.
// SORTERPANE_PAIRS is the number of pairs to try; where it is given, all characters are tried too, which
// takes a minute.

namespace qbsp::contracts {

using namespace std::string_literals;

namespace {

const appkit::AppKitStringComparison comparison;

std::weak_ordering ordered(const std::string& one, const std::string& other) {
    return comparison.caseInsensitiveCompare(one, other);
}

std::weak_ordering orderedByPlatform(const std::string& one, const std::string& other) {
    return [appkit::nsString(one) caseInsensitiveCompare:appkit::nsString(other)] <=> NSOrderedSame;
}

void append(std::string& text, char32_t character) {
    const auto byte = [&](char32_t bits) {
        text += static_cast<char>(bits);
    };
    const auto rest = [&](int shift) {
        byte(0x80U | (character >> shift & 0x3FU));
    };
    if (character < 0x80) {
        byte(character);
    } else if (character < 0x800) {
        byte(0xC0U | character >> 6U);
        rest(0);
    } else if (character < 0x10000) {
        byte(0xE0U | character >> 12U);
        rest(6);
        rest(0);
    } else {
        byte(0xF0U | character >> 18U);
        rest(12);
        rest(6);
        rest(0);
    }
}

bool isHalf(char32_t code) {
    return code >= 0xD800 && code < 0xE000;
}

std::string codesOf(const std::string& text) {
    std::ostringstream codes;
    for (const char byte : text)
        codes << std::hex << std::setw(2) << std::setfill('0') << int(static_cast<unsigned char>(byte))
              << ' ';
    return codes.str();
}

std::vector<std::size_t> placesOf(const std::vector<std::string>& texts) {
    return comparison.order(std::vector<std::string_view>(texts.begin(), texts.end()));
}

void expectOrder(const std::string& one, const std::string& other, std::weak_ordering order) {
    ASSERT_EQ(ordered(one, other), order) << codesOf(one) << "and " << codesOf(other);
}

void expectPlatformsOrder(const std::string& one, const std::string& other) {
    const auto order = orderedByPlatform(one, other);
    const std::size_t first = std::is_gt(order) ? 1 : 0;
    expectOrder(one, other, order);
    ASSERT_EQ(placesOf({one, other}).front(), first) << codesOf(one) << "and " << codesOf(other);
}

/// Runs the action in a pool of its own, so that the platform's strings go.
template <class Action>
void pooled(Action action) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    action();
    [pool release];
}

using Random = std::mt19937;

char32_t below(char32_t limit, Random& random) {
    return static_cast<char32_t>(random() % limit);
}

/// Characters that meet in all the ways in which the comparison treats them differently.
char32_t anyCharacter(Random& random) {
    static const std::u32string few =
        U"aAbBzZ_ 09\0\uFEFF\u00DF\u00C5\u00E9\u01C4\u01D6\u01E9\u0130\u0131\u0387\u0390"
        U"\u0300\u0301\u0304\u0307\u0308\u030A\u0316\u0323\u0327\u0338\u0345\u05B0\u0651"
        U"\u03A3\u03C2\u0436\u0416\u1E9B\u1EAD\u1FA7\u2126\u212A\u212B\uAC00\u1100\u1161"
        U"\u6F22\uF900\uFB1D\uFB01\uFF21\uFFFF\U00010400\U00010428\U0001D15E\U0001F642"s;
    switch (below(8, random)) {
    case 0: {
        const char32_t code = below(0x110000, random);
        return isHalf(code) ? code - 0x800 : code;
    }
    case 1:
        return 0x300 + below(0x70, random);
    case 2:
        return 0xC0 + below(0x240, random);
    default:
        return few[random() % few.size()];
    }
}

std::string anyText(Random& random) {
    std::string text;
    for (auto length = random() % 7; length > 0; --length)
        append(text, anyCharacter(random));
    return text;
}

const char* chosenPairs() {
    return std::getenv("SORTERPANE_PAIRS");
}

/// All characters of the basic plane, and of the others one in 64, or all.
std::vector<std::string> singleCharacters() {
    const char32_t stepBeyond = chosenPairs() == nullptr ? 64 : 1;
    std::vector<std::string> characters;
    for (char32_t code = 0; code < 0x110000; code += code < 0x10000 ? 1 : stepBeyond)
        if (!isHalf(code))
            append(characters.emplace_back(), code);
    return characters;
}

} // namespace

// In an order of all that holds between neighbours by the platform's comparison, it holds between all.
TEST(StringOrder, OfSingleCharactersIsThePlatforms) {
    const std::vector<std::string> characters = singleCharacters();
    const std::vector<std::size_t> places = placesOf(characters);
    for (std::size_t next = 1; next < places.size() && !testing::Test::HasFatalFailure(); ++next)
        pooled([&] {
            const std::string& one = characters[places[next - 1]];
            const std::string& other = characters[places[next]];
            const auto order = orderedByPlatform(one, other);
            expectOrder(one, other, order);
            EXPECT_TRUE(std::is_lteq(order)) << codesOf(one) << "and " << codesOf(other);
        });
}

TEST(StringOrder, OfCombinedCharactersIsThePlatforms) {
    const int pairs = chosenPairs() == nullptr ? 10'000 : std::atoi(chosenPairs());
    Random random(20261121);
    for (int number = 0; number < pairs; ++number)
        pooled([&] {
            const std::string beginning = number % 2 == 0 ? anyText(random) : "";
            expectPlatformsOrder(beginning + anyText(random), beginning + anyText(random));
        });
}

TEST(StringOrder, PassesOverByteOrderMarksAsThePlatformDoes) {
    const std::string mark = "\xEF\xBB\xBF";
    std::string marks;
    for (int count = 0; count < 4; ++count, marks += mark)
        pooled([&] {
            expectPlatformsOrder(marks + "Mail", "mail");
            expectPlatformsOrder("Mail", marks + "mail");
            expectPlatformsOrder(marks, "");
        });
}

// What is no UTF-8 is in no list that was read. It must not end anything.
TEST(StringOrder, OfAnyBytesIsOne) {
    Random random(20261121);
    std::vector<std::string> texts(300);
    for (std::string& text : texts) {
        text.resize(random() % 8);
        std::ranges::generate(text, [&] { return static_cast<char>(random() % 4 == 0 ? 'a' : random()); });
    }
    const std::vector<std::size_t> places = placesOf(texts);
    for (std::size_t one = 0; one < texts.size(); ++one)
        for (std::size_t other = 0; other < one; ++other)
            EXPECT_TRUE(std::is_lteq(ordered(texts[places[other]], texts[places[one]])))
                << codesOf(texts[places[other]]) << "and " << codesOf(texts[places[one]]);
}

} // namespace qbsp::contracts

#include "Names.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <random>

namespace benchmarks {

namespace {

using Random = std::mt19937;

constexpr std::string_view ascii = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 -";

constexpr std::array<std::string_view, 30> others{
    "ä", "Ö",  "é",  "É",  "ñ",  "ç",  "Š",  "ł",  "α",       "Ω", "λ", "Σ",    "б", "Ж", "я",
    "Д", "漢", "字", "東", "京", "あ", "カ", "한", "e\u0301", "ﬁ", "𐐀", "🙂", "𝒜", "ḧ", "Ǆ"};

std::size_t below(std::size_t limit, Random& random) {
    return random() % limit;
}

std::string asciiOf(std::size_t length, Random& random) {
    std::string text(length, ' ');
    std::ranges::generate(text, [&] { return ascii[below(ascii.size(), random)]; });
    return text;
}

std::string othersOf(std::size_t length, Random& random) {
    std::string text;
    for (std::size_t number = 0; number < length; ++number)
        text += others.at(below(others.size(), random));
    return text;
}

// The number keeps names apart that come out the same.
std::string nameOf(Kind kind, std::size_t number, std::size_t count, Random& random) {
    constexpr std::size_t longLength = 10'000;
    const std::string digits = std::to_string(number);
    switch (kind) {
    case Kind::someNotAscii:
        return nameOf(number % 10 == 0 ? Kind::notAscii : Kind::ascii, number, count, random);
    case Kind::notAscii:
        return othersOf(6 + below(8, random), random) + digits;
    case Kind::onePrefix:
        return std::string(100, 'x') + asciiOf(4, random) + digits;
    case Kind::longNames:
        return asciiOf(longLength, random) + digits;
    case Kind::inOrder:
        return "Application " + std::string(std::to_string(count).size() - digits.size(), '0') + digits;
    default:
        return asciiOf(6 + below(12, random), random) + digits;
    }
}

} // namespace

std::string nameOf(Kind kind) {
    switch (kind) {
    case Kind::someNotAscii:
        return "a tenth not ASCII";
    case Kind::notAscii:
        return "none ASCII";
    case Kind::onePrefix:
        return "one prefix";
    case Kind::longNames:
        return "10,000 characters each";
    case Kind::inOrder:
        return "in order";
    default:
        return "ASCII";
    }
}

std::vector<std::string> namesOf(Kind kind, std::size_t count) {
    Random random(20261121); // NOLINT(cert-msc51-cpp,cert-msc32-c): the same names in every run
    std::vector<std::string> names;
    for (std::size_t number = 0; number < count; ++number)
        names.push_back(nameOf(kind, number, count, random));
    return names;
}

std::filesystem::path storeList(std::span<const std::string> names) {
    const auto file =
        std::filesystem::path(std::getenv("HOME")) / "GNUstep/Defaults/com.quarrybook.SoloSorter.plist";
    std::ofstream stream(file);
    stream << R"(<?xml version="1.0" encoding="UTF-8"?>)"
              "\n<plist version=\"1.0\"><dict><key>UserSpecifiedFullScreenApplications</key><dict>\n";
    for (std::size_t row = 0; row < names.size(); ++row)
        stream << "<key>" << names[row] << "</key>\n" << (row % 3 == 0 ? "<true/>\n" : "<false/>\n");
    stream << "</dict></dict></plist>\n";
    return file;
}

} // namespace benchmarks

#include "ScenarioLine.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <string_view>

namespace quarrybook {

namespace {

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

void appendUTF8(std::string& text, unsigned long code) {
    const auto tail = [&](int shift) {
        text += static_cast<char>(0x80 | ((code >> shift) & 0x3f));
    };
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xc0 | (code >> 6));
        tail(0);
    } else if (code < 0x10000) {
        text += static_cast<char>(0xe0 | (code >> 12));
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xf0 | (code >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

/// Reads one JSON string out of a line.
class StringReader {
public:
    StringReader(const std::string& line, std::size_t& position) : line_(line), position_(position) {}

    std::string read() {
        std::string text;
        for (++position_; next() != '"'; ++position_) {
            if (next() == '\\')
                readEscape(text);
            else
                text += next();
        }
        ++position_;
        return text;
    }

private:
    char next() const {
        if (position_ >= line_.size())
            throw ScenarioError("malformed string");
        return line_[position_];
    }

    void readEscape(std::string& text) {
        ++position_;
        static const std::string letters = "\"\\/bfnrt";
        static const std::string meanings = "\"\\/\b\f\n\r\t";
        const auto known = letters.find(next());
        if (known != std::string::npos)
            text += meanings[known];
        else if (next() == 'u')
            appendUTF8(text, readCodePoint());
        else
            throw ScenarioError("malformed string");
    }

    unsigned long readCodePoint() {
        const unsigned long first = readHex();
        if (first < 0xd800 || first > 0xdbff)
            return first;
        if (line_.compare(position_ + 1, 2, "\\u") != 0)
            throw ScenarioError("malformed string");
        position_ += 2;
        return 0x10000 + ((first - 0xd800) << 10) + (readHex() - 0xdc00);
    }

    // Leaves the position at the last digit.
    unsigned long readHex() {
        const std::string digits = line_.substr(std::min(position_ + 1, line_.size()), 4);
        if (digits.size() != 4 || digits.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos)
            throw ScenarioError("malformed string");
        position_ += 4;
        return std::stoul(digits, nullptr, 16);
    }

    const std::string& line_;
    std::size_t& position_;
};

} // namespace

std::vector<ScenarioLine> readScenario(const std::string& path) {
    std::ifstream file(path);
    if (!file)
        throw ScenarioError("cannot be read");
    std::vector<ScenarioLine> lines;
    std::string text;
    for (int number = 1; std::getline(file, text); ++number) {
        text = trimmed(text);
        if (!text.empty() && text[0] != '#')
            lines.push_back({.number = number, .text = text});
    }
    return lines;
}

std::vector<Argument> split(const std::string& line) {
    std::vector<Argument> words;
    std::size_t position = 0;
    while ((position = line.find_first_not_of(' ', position)) != std::string::npos) {
        if (line[position] == '"') {
            words.push_back({.text = StringReader(line, position).read(), .quoted = true});
            continue;
        }
        const auto end = std::min(line.find(' ', position), line.size());
        words.push_back({.text = line.substr(position, end - position)});
        position = end;
    }
    return words;
}

std::string quoted(const std::string& text) {
    constexpr std::string_view letters = "\"\\bfnrt";
    constexpr std::string_view meanings = "\"\\\b\f\n\r\t";
    constexpr std::string_view digits = "0123456789abcdef";
    std::string json = "\"";
    for (const char character : text) {
        const auto known = meanings.find(character);
        const auto code = static_cast<unsigned char>(character);
        if (known != std::string_view::npos)
            json.append({'\\', letters[known]});
        else if (code >= 0x20)
            json += character;
        else
            json.append({'\\', 'u', '0', '0', digits[code >> 4U], digits[code & 0xfU]});
    }
    return json + "\"";
}

long long wholeNumber(const Argument& argument) {
    const bool hexadecimal = argument.text.find("0x") != std::string::npos;
    char* end = nullptr;
    const long long number = std::strtoll(argument.text.c_str(), &end, hexadecimal ? 16 : 10);
    if (argument.quoted || argument.text.empty() || *end != '\0')
        throw ScenarioError("'" + argument.text + "' is not a whole number");
    return number;
}

double seconds(const Argument& argument) {
    char* end = nullptr;
    const double number = std::strtod(argument.text.c_str(), &end);
    if (argument.quoted || argument.text.empty() || *end != '\0' || !(number >= 0 && number < 1e6))
        throw ScenarioError("'" + argument.text + "' is not a number of seconds");
    return number;
}

} // namespace quarrybook

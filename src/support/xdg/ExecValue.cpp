#include "xdg/ExecValue.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <vector>

namespace xdg {

namespace {

constexpr std::array<std::pair<char, char>, 4> valueEscapes{
    {{'\n', 'n'}, {'\t', 't'}, {'\r', 'r'}, {'\\', '\\'}}};

// What a shell would interpret between double quotes.
constexpr std::string_view escapedInQuotes = "\"`$\\";
constexpr std::string_view blanks = " \t\n";

char meaningOfEscape(char letter) {
    if (letter == 's')
        return ' ';
    for (const auto& [character, escape] : valueEscapes)
        if (escape == letter)
            return character;
    return letter;
}

void appendEscaped(std::string& value, char character) {
    for (const auto& [special, escape] : valueEscapes)
        if (special == character) {
            value += {'\\', escape};
            return;
        }
    value += character;
}

/// Where the argument that begins the line ends; none for an open quote.
std::optional<std::size_t> endOfArgument(std::string_view line) {
    bool quoted = false;
    std::size_t end = 0;
    for (; end < line.size() && (quoted || blanks.find(line[end]) == std::string_view::npos); ++end) {
        if (line[end] == '"')
            quoted = !quoted;
        else if (line[end] == '\\')
            ++end;
    }
    if (quoted || end > line.size())
        return std::nullopt;
    return end;
}

std::string unquoted(std::string_view argument) {
    std::string text;
    for (std::size_t at = 0; at < argument.size(); ++at) {
        if (argument[at] == '"')
            continue;
        const bool escape = argument[at] == '\\' || argument.substr(at, 2) == "%%";
        text += argument[escape ? ++at : at];
    }
    return text;
}

std::string inQuotes(std::string_view argument) {
    std::string text = "\"";
    for (const char character : argument) {
        if (escapedInQuotes.find(character) != std::string_view::npos)
            text += '\\';
        text += character;
        if (character == '%') // a single one would begin a field code
            text += '%';
    }
    return text + '"';
}

/// The arguments of a command line; none for an open quote.
std::vector<std::string> arguments(std::string_view line) {
    std::vector<std::string> all;
    for (;;) {
        line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
        const auto end = endOfArgument(line);
        if (!end)
            return {};
        if (*end == 0)
            return all;
        all.push_back(unquoted(line.substr(0, *end)));
        line.remove_prefix(*end);
    }
}

// The first argument must not contain an equals sign, and desktops look it up on disk without resolving
// doubled percent signs. A program with such a path is therefore run by the shell.
bool needsShell(std::string_view program) {
    return program.find_first_of("=%") != std::string_view::npos;
}

const std::vector<std::string> shellPrefix{"/bin/sh", "-c", "exec \"$0\""};

} // namespace

std::string escapedValue(std::string_view text) {
    // Readers skip the spaces around a value.
    const auto first = std::min(text.find_first_not_of(' '), text.size());
    const auto last = text.find_last_not_of(' ');
    std::string value;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (at < first || at > last)
            value += "\\s";
        else
            appendEscaped(value, text[at]);
    }
    return value;
}

std::string unescapedValue(std::string_view value) {
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        const bool escape = value[at] == '\\' && at + 1 < value.size();
        text += escape ? meaningOfEscape(value[++at]) : value[at];
    }
    return text;
}

std::string commandLine(std::string_view program) {
    std::string line;
    if (needsShell(program))
        for (const auto& argument : shellPrefix)
            line += inQuotes(argument) + " ";
    return line + inQuotes(program);
}

std::optional<std::string> programOfCommandLine(std::string_view line) {
    const auto all = arguments(line);
    if (all.empty())
        return std::nullopt;
    const bool byShell = all.size() == shellPrefix.size() + 1 &&
                         std::equal(shellPrefix.begin(), shellPrefix.end(), all.begin());
    return byShell ? all.back() : all.front();
}

} // namespace xdg

#include "xdg/DesktopEntry.h"

#include "xdg/ExecValue.h"

#include <map>

namespace xdg {

namespace {

constexpr std::string_view groupHeader = "[Desktop Entry]";
constexpr std::string_view nameKey = "Name";
constexpr std::string_view execKey = "Exec";
constexpr std::string_view hiddenKey = "Hidden";
constexpr std::string_view enabledKey = "X-GNOME-Autostart-enabled";

using Keys = std::map<std::string_view, std::string_view>;

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view takeLine(std::string_view& text) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(line.size() == text.size() ? line.size() : line.size() + 1);
    return line;
}

Keys keysOfEntry(std::string_view text) {
    Keys keys;
    bool inGroup = false;
    while (!text.empty()) {
        const auto line = trimmed(takeLine(text));
        const auto equals = line.find('=');
        if (line.starts_with('['))
            inGroup = line == groupHeader;
        else if (inGroup && !line.starts_with('#') && equals != std::string_view::npos)
            keys.emplace(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
    }
    return keys;
}

std::string_view value(const Keys& keys, std::string_view key) {
    const auto found = keys.find(key);
    return found == keys.end() ? std::string_view() : found->second;
}

bool isEnabled(const Keys& keys) {
    return value(keys, hiddenKey) != "true" && value(keys, enabledKey) != "false";
}

std::string line(std::string_view key, std::string_view value) {
    return std::string(key) + "=" + std::string(value) + "\n";
}

} // namespace

std::string desktopEntryText(const DesktopEntry& entry) {
    return std::string(groupHeader) + "\n" + line("Type", "Application") +
           line(nameKey, escapedValue(entry.name)) + line(execKey, escapedValue(commandLine(entry.program))) +
           line("TryExec", escapedValue(entry.program)) + line("Terminal", "false") +
           line(enabledKey, "true");
}

std::optional<DesktopEntry> parsedDesktopEntry(std::string_view text) {
    const auto keys = keysOfEntry(text);
    const auto program = programOfCommandLine(unescapedValue(value(keys, execKey)));
    if (!program)
        return std::nullopt;
    return DesktopEntry{unescapedValue(value(keys, nameKey)), *program, isEnabled(keys)};
}

} // namespace xdg

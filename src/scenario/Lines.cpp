#include "scenario/Lines.h"

#include "scenario/Json.h"
#include "scenario/ScenarioError.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace qbsp::scenario {

namespace {

std::string_view withoutOuterSpaces(std::string_view line) {
    const auto first = line.find_first_not_of(' ');
    return first == std::string_view::npos ? "" : line.substr(first, line.find_last_not_of(' ') - first + 1);
}

} // namespace

std::optional<std::string> contentsOf(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    // A folder can be opened, and then reads as if it were empty.
    if (!stream || std::filesystem::is_directory(path))
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

std::optional<std::string_view> Lines::nextCommand() {
    while (position_ < text_.size()) {
        const std::string_view line = nextLine();
        if (!isUtf8(line))
            throw ScenarioError("not UTF-8");
        const std::string_view command = withoutOuterSpaces(line);
        if (!command.empty() && !command.starts_with('#'))
            return command;
    }
    return std::nullopt;
}

std::string_view Lines::nextLine() {
    const auto end = std::min(text_.find('\n', position_), text_.size());
    const std::string_view line = std::string_view(text_).substr(position_, end - position_);
    position_ = end + 1;
    ++number_;
    return line;
}

} // namespace qbsp::scenario

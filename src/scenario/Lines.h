#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace qbsp::scenario {

/// The whole contents of a file; none when it cannot be read.
[[nodiscard]] std::optional<std::string> contentsOf(const std::string& path);

/// The lines of a scenario, taken one by one from the front. LF ends a line; the last need not have one.
class Lines {
public:
    /// The name that messages have for the file, and what is in it.
    Lines(std::string file, std::string text) : file_(std::move(file)), text_(std::move(text)) {}

    /// Goes on to the next line that holds a command, past blank lines and comments, and returns the command
    /// without outer spaces; none after the last. The view is valid as long as these lines are. Throws
    /// ScenarioError for a line that is not UTF-8.
    [[nodiscard]] std::optional<std::string_view> nextCommand();

    /// Where the line is that was taken last, as FILE:LINE with lines counted from 1.
    [[nodiscard]] std::string place() const { return file_ + ":" + std::to_string(number_); }

private:
    [[nodiscard]] std::string_view nextLine();

    std::string file_;
    std::string text_;
    std::size_t position_ = 0;
    std::size_t number_ = 0;
};

} // namespace qbsp::scenario

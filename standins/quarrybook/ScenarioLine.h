#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace quarrybook {

/// A scenario that cannot be played on.
struct ScenarioError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// One argument of a command: a bare word, or the contents of a JSON string.
struct Argument {
    std::string text;
    bool quoted = false;
};

/// A line of a scenario.
struct ScenarioLine {
    int number = 0;
    std::string text; ///< as it stood, without outer spaces
};

/// The lines that hold a command. Throws ScenarioError when the file cannot be read.
[[nodiscard]] std::vector<ScenarioLine> readScenario(const std::string& path);

/// The words of a line. Throws ScenarioError for a malformed JSON string.
[[nodiscard]] std::vector<Argument> split(const std::string& line);

/// The text as a JSON string.
[[nodiscard]] std::string quoted(const std::string& text);

/// The whole number, decimal or 0x; throws ScenarioError when the argument is none.
[[nodiscard]] long long wholeNumber(const Argument& argument);

/// The number of seconds; throws ScenarioError when the argument is none.
[[nodiscard]] double seconds(const Argument& argument);

} // namespace quarrybook

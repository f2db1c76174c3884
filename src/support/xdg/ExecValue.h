#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace xdg {

/// A text as the value of a key: line breaks, tabs, backslashes and the spaces at its beginning and end are
/// escaped.
[[nodiscard]] std::string escapedValue(std::string_view text);

/// The text of an escaped value.
[[nodiscard]] std::string unescapedValue(std::string_view value);

/// The command line that runs the program without arguments, not yet escaped as a value.
[[nodiscard]] std::string commandLine(std::string_view program);

/// The program that a command line runs; none when the line is empty or has an open quote.
[[nodiscard]] std::optional<std::string> programOfCommandLine(std::string_view line);

} // namespace xdg

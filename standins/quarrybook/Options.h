#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quarrybook {

enum class Edition { full, solo };

/// What the command line asks for.
struct Options {
    bool sandboxed = false;
    Edition edition = Edition::full;
    bool withSorterPlugin = true;
    std::optional<std::string> pane;
    std::optional<std::string> scenario;
    std::optional<std::string> picture;
    bool help = false;
    std::vector<std::string> forAppKit; ///< pairs such as -NSLanguages '(German)', passed on
};

/// What is wrong with a command line, in one line.
struct Mistake {
    std::string text;
};

/// Parses the arguments, without the program's name.
[[nodiscard]] std::variant<Options, Mistake> parseOptions(const std::vector<std::string>& arguments);

/// The text of --help.
[[nodiscard]] std::string usage();

} // namespace quarrybook

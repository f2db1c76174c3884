#pragma once

#include <algorithm>
#include <string>
#include <string_view>

// A table of commands is a range of records, each with a command's `name` and how its `arguments` are
// written, both std::string_view, beside whatever reads them.

namespace qbsp::scenario {

/// The record of the command of that name; null when there is none.
template <class Table>
[[nodiscard]] auto findCommand(const Table& table, std::string_view name) {
    const auto found =
        std::ranges::find_if(table, [name](const auto& command) { return command.name == name; });
    return found == std::ranges::end(table) ? nullptr : &*found;
}

/// How each command is written, a line each, as a help text shows it.
template <class Table>
[[nodiscard]] std::string commandList(const Table& table) {
    std::string lines;
    for (const auto& command : table) {
        lines.append("  ").append(command.name);
        if (!command.arguments.empty())
            lines.append(" ").append(command.arguments);
        lines.append("\n");
    }
    return lines;
}

} // namespace qbsp::scenario

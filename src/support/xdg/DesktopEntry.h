#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace xdg {

/// An application that the desktop starts when the user logs in.
struct DesktopEntry {
    std::string name;    ///< as the user sees it
    std::string program; ///< the path of its executable
    bool enabled = true; ///< false when the user switched the entry off
};

/// The text of an enabled entry's file, which starts the program without arguments. Name and program are
/// UTF-8.
[[nodiscard]] std::string desktopEntryText(const DesktopEntry& entry);

/// The entry in a file's text; none when it starts no program.
[[nodiscard]] std::optional<DesktopEntry> parsedDesktopEntry(std::string_view text);

} // namespace xdg

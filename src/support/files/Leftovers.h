#pragma once

#include <filesystem>
#include <string_view>

namespace files {

/// A name in that folder for what this process needs for a moment: the beginning, the process, a number of
/// its own.
[[nodiscard]] std::filesystem::path passingName(const std::filesystem::path& folder,
                                                std::string_view beginning);

/// Removes what processes that have ended left behind under such names. What belongs to a process of which
/// nothing is known goes once it is a day old.
void removeLeftovers(const std::filesystem::path& folder, std::string_view beginning);

} // namespace files

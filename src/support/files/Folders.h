#pragma once

#include <filesystem>
#include <system_error>

namespace files {

/// Makes the folder and those that lead to it; whoever is missing is made for its owner alone, whatever the
/// umask. Those that exist stay as they are.
[[nodiscard]] std::error_code makeFolders(const std::filesystem::path& folder);

/// Has the names in the folder reach the disk.
[[nodiscard]] std::error_code syncFolder(const std::filesystem::path& folder);

/// Replaces the path by the one where the file really lies: links are followed, also to a file that does not
/// exist yet. One that is no link stays, and so does one of a circle. An error when it cannot be found out
/// whether it is a link.
[[nodiscard]] std::error_code followLinks(std::filesystem::path& file);

} // namespace files

#pragma once

#include <filesystem>
#include <system_error>

namespace files {

/// Makes the folder and those that lead to it; whoever is missing is made for its owner alone, whatever the
/// umask. Those that exist stay as they are.
[[nodiscard]] std::error_code makeFolders(const std::filesystem::path& folder);

/// Has the names in the folder reach the disk.
[[nodiscard]] std::error_code syncFolder(const std::filesystem::path& folder);

/// Where a file of that path really lies: links are followed, also to a file that does not exist yet. The
/// path itself when it is no link, or one of a circle.
[[nodiscard]] std::filesystem::path whereLinksLead(const std::filesystem::path& file);

} // namespace files

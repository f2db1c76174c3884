#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace faults {

/// The session's, where everything is stored.
[[nodiscard]] std::filesystem::path home();

/// What lies in a folder: the bytes of each file, "-> " and where it leads for each link, nothing for a
/// folder, by its path below that folder.
using Contents = std::map<std::string, std::string>;

[[nodiscard]] Contents contentsOf(const std::filesystem::path& folder);

/// Makes the folder hold just that. What has no extension is a folder.
void put(const Contents& contents, const std::filesystem::path& folder);

} // namespace faults

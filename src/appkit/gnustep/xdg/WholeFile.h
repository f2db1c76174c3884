#pragma once

#include <filesystem>
#include <string_view>

namespace xdg {

/// Writes the file whole or not at all, and makes the folders that lead to it. False when that failed; what
/// was there before is then untouched.
[[nodiscard]] bool writeWhole(const std::filesystem::path& file, std::string_view content);

} // namespace xdg

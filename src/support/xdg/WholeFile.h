#pragma once

#include <filesystem>
#include <string_view>

namespace xdg {

/// Who may read a file.
enum class Readers { all, owner };

/// Writes the file whole or not at all, and makes the folders that lead to it. No other than the readers can
/// read any of it at any time. False when that failed; what was there before is then untouched.
[[nodiscard]] bool writeWhole(const std::filesystem::path& file, std::string_view content,
                              Readers readers = Readers::all);

} // namespace xdg

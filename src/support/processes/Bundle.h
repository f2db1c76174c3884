#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace processes {

/// A bundle as its files describe it at this moment.
struct Bundle {
    std::string identifier; ///< empty when it has none
    std::filesystem::path
        executable; ///< as it names it, whether or not it is there; empty when it names none

    friend bool operator==(const Bundle&, const Bundle&) = default;
};

/// Descriptions of bundles are read up to this size, in bytes.
inline constexpr std::size_t largestDescription = std::size_t{1} << 20U;

/// The bundle at that path; none when there is no folder. It is described by the first file of these that is
/// there: Info-gnustep.plist in Resources or in the bundle itself, Info.plist in either. An executable named
/// relative to the bundle, and lies in it.
[[nodiscard]] std::optional<Bundle> bundleAt(const std::filesystem::path& path);

/// Whether the path is that of a file which this user may execute.
[[nodiscard]] bool canBeExecuted(const std::filesystem::path& file);

} // namespace processes

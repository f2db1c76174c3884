#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace applications {

/// A bundle as its files describe it at this moment.
struct Bundle {
    /// Empty when it has none.
    std::string identifier;
    /// Whether or not it is there; empty when the bundle names none.
    std::filesystem::path executable;

    friend bool operator==(const Bundle&, const Bundle&) = default;
};

/// Descriptions of bundles are read up to this size, in bytes.
inline constexpr std::size_t largestDescription = std::size_t{1} << 20U;

/// The bundle at that path; none when there is no folder. It is described by the first file of these that is
/// there: Info-gnustep.plist in Resources or in the bundle itself, Info.plist in either. Its executable is
/// named relative to the bundle and lies in it.
[[nodiscard]] std::optional<Bundle> bundleAt(const std::filesystem::path& path);

/// Whether the path is that of a file which this user may execute.
[[nodiscard]] bool canBeExecuted(const std::filesystem::path& file);

} // namespace applications

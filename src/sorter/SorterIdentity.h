#pragma once

#include "platform/Name.h"

namespace qbsp {

/// Who the Sorter of an edition is.
struct SorterIdentity {
    platform::BundleIdentifier bundleIdentifier;
    std::string_view appName; ///< the application's name, without its extension

    /// The preferences domain, which bears the name of the bundle identifier.
    [[nodiscard]] constexpr platform::ApplicationID domain() const { return {bundleIdentifier.text}; }
};

inline constexpr platform::BundleIdentifier SorterBundleIdentifier{"com.quarrybook.Sorter"};
inline constexpr platform::BundleIdentifier SoloSorterBundleIdentifier{"com.quarrybook.SoloSorter"};

inline constexpr SorterIdentity fullSorter{SorterBundleIdentifier, "Quarrybook Sorter"};
inline constexpr SorterIdentity soloSorter{SoloSorterBundleIdentifier, "Quarrybook Solo Sorter"};

/// The Sorter that the sandboxed host embeds, of either edition: its bundle identifier and login-item label,
/// and where it lies in the host's bundle.
inline constexpr platform::BundleIdentifier SorterLoginItemIdentifier{"Z3K8WQ4N7P.quarry2.QuarrybookSorter"};
inline constexpr std::string_view SorterLoginItemPath =
    "Contents/Library/LoginItems/Z3K8WQ4N7P.quarry2.QuarrybookSorter.app";

} // namespace qbsp

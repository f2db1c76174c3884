#pragma once

#include "platform/Name.h"
#include "platform/ServiceManagement.h"
#include "platform/URL.h"

#include <string>

namespace qbsp {

/// Who the Sorter of an edition is.
struct SorterIdentity {
    platform::BundleIdentifier bundleIdentifier;
    std::string_view appName; ///< the application's name, without its extension

    /// The preferences domain, which is named after the bundle identifier.
    [[nodiscard]] constexpr platform::ApplicationID domain() const { return {bundleIdentifier.text}; }
};

inline constexpr platform::BundleIdentifier SorterBundleIdentifier{"com.quarrybook.Sorter"};
inline constexpr platform::BundleIdentifier SoloSorterBundleIdentifier{"com.quarrybook.SoloSorter"};

inline constexpr SorterIdentity fullSorter{SorterBundleIdentifier, "Quarrybook Sorter"};
inline constexpr SorterIdentity soloSorter{SoloSorterBundleIdentifier, "Quarrybook Solo Sorter"};

/// The Sorter that the sandboxed host embeds, in both editions: its bundle identifier, which is also the
/// label of its login item, and where it lies in the host's bundle.
inline constexpr platform::BundleIdentifier SorterLoginItemIdentifier{"Z3K8WQ4N7P.quarry2.QuarrybookSorter"};
inline const std::string SorterLoginItemPath = platform::appendingPathExtension(
    platform::appendingPathComponent(platform::loginItemsFolder, SorterLoginItemIdentifier.text), "app");

} // namespace qbsp

#pragma once

#include "platform/Name.h"
#include "platform/URL.h"

#include <optional>
#include <string>

namespace qbsp {
class QBSPSorterControl;
}

namespace qbsp::platform {

/// The bundles that code and texts were loaded from.
class Bundles {
public:
    virtual ~Bundles() = default;

    /// Where the host's main bundle lies.
    [[nodiscard]] virtual URL mainBundleURL() const = 0;

    /// The executable of the bundle that defines the registrar's class; without a registrar, of the bundle
    /// that the platform reports for no class. None when that bundle has no executable.
    [[nodiscard]] virtual std::optional<std::string>
    executablePathOfBundleForClassOf(const QBSPSorterControl* registrar) const = 0;

    /// The text for the key in a table of the pane's own bundle: the default one when none is named. A key
    /// that the table lacks gives the fallback.
    [[nodiscard]] virtual std::string localizedStringForKey(TextKey key, FallbackText value,
                                                            std::optional<TextTable> table) const = 0;
};

} // namespace qbsp::platform

#pragma once

#include "platform/Bundles.h"

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

class AppKitBundles final : public platform::Bundles {
public:
    /// Texts come from the bundle that this class was loaded from.
    explicit AppKitBundles(Class paneClass) : paneClass_(paneClass) {}

    [[nodiscard]] platform::URL mainBundleURL() const override;

    /// The registrar is one that this process's runtime handed out.
    [[nodiscard]] std::optional<std::string>
    executablePathOfBundleForClassOf(const QBSPSorterControl* registrar) const override;

    [[nodiscard]] std::string localizedStringForKey(platform::TextKey key, platform::FallbackText value,
                                                    std::optional<platform::TextTable> table) const override;

private:
    Class paneClass_;
};

} // namespace qbsp::appkit

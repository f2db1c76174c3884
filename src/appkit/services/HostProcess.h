#pragma once

#include "platform/Bundles.h"
#include "platform/Host.h"
#include "platform/Log.h"
#include "platform/ProcessInfo.h"

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

class AppKitBundles final : public platform::Bundles {
public:
    /// Localized texts come from the bundle that this class was loaded from.
    explicit AppKitBundles(Class paneClass) : paneClass_(paneClass) {}

    [[nodiscard]] platform::URL mainBundleURL() const override;

    /// A registrar that is not a RegistrarAdapter counts as none.
    [[nodiscard]] std::optional<std::string>
    executablePathOfBundleForClassOf(const QBSPSorterControl* registrar) const override;

    [[nodiscard]] std::string localizedStringForKey(platform::TextKey key, platform::FallbackText value,
                                                    std::optional<platform::TextTable> table) const override;

private:
    Class paneClass_;
};

/// The application object of the process.
class AppKitHost final : public platform::Host {
public:
    [[nodiscard]] bool isSandboxed() const override;
    [[nodiscard]] bool isPro() const override;
};

class AppKitProcessInfo final : public platform::ProcessInfo {
public:
    [[nodiscard]] std::string processName() const override;
};

class AppKitLog final : public platform::Log {
public:
    void log(std::string_view line) override;
};

} // namespace qbsp::appkit

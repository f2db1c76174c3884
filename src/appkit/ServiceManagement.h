#pragma once

#include "platform/ServiceManagement.h"

namespace qbsp::appkit {

/// The login items embedded in the main bundle, and the user's jobs.
class AppKitServiceManagement final : public platform::ServiceManagement {
public:
    void loginItemSetEnabled(platform::BundleIdentifier identifier, bool enabled) override;

    [[nodiscard]] std::optional<std::vector<platform::Dictionary>>
    copyAllJobDictionaries(platform::JobDomain domain) const override;
};

} // namespace qbsp::appkit

#pragma once

#include "platform/LaunchServices.h"

namespace qbsp::appkit {

/// The launch database. A system without one answers success for any application that it could launch.
class AppKitLaunchServices final : public platform::LaunchServices {
public:
    [[nodiscard]] std::int32_t registerURL(const platform::URL& url,
                                           platform::RegistrationUpdate update) override;
};

} // namespace qbsp::appkit

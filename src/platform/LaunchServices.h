#pragma once

#include "platform/URL.h"

#include <cstdint>

namespace qbsp::platform {

/// Whether an application that is registered already is registered anew.
enum class RegistrationUpdate : bool { ifNewer = false, always = true };

/// The system's launch database.
class LaunchServices {
public:
    virtual ~LaunchServices() = default;

    /// Registers the application at that URL. 0 is success, any other status a failure.
    [[nodiscard]] virtual std::int32_t registerURL(const URL& url, RegistrationUpdate update) = 0;
};

} // namespace qbsp::platform

#pragma once

#include "platform/Name.h"

namespace qbsp::platform {

/// The applications that run, whoever started them.
class RunningApplications {
public:
    virtual ~RunningApplications() = default;

    /// True when a living process is an application with that bundle identifier.
    [[nodiscard]] virtual bool applicationIsRunning(BundleIdentifier identifier) const = 0;
};

} // namespace qbsp::platform

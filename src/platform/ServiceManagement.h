#pragma once

#include "platform/Name.h"
#include "platform/Value.h"

#include <optional>
#include <vector>

namespace qbsp::platform {

/// Which launchd's jobs are meant.
enum class JobDomain { userLaunchd };

/// The login items that are embedded in the host, and the user's jobs.
class ServiceManagement {
public:
    virtual ~ServiceManagement() = default;

    /// Switches the embedded application's login item on, which also starts it, or off, which also stops it.
    /// Whether that worked shows in what runs afterwards.
    virtual void loginItemSetEnabled(BundleIdentifier identifier, bool enabled) = 0;

    /// The domain's jobs, a dictionary each with "Label" and "OnDemand"; none when there is no list.
    [[nodiscard]] virtual std::optional<std::vector<Dictionary>>
    copyAllJobDictionaries(JobDomain domain) const = 0;
};

} // namespace qbsp::platform

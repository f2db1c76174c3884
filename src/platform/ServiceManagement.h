#pragma once

#include "platform/Name.h"
#include "platform/Value.h"

#include <optional>
#include <string_view>
#include <vector>

namespace qbsp::platform {

/// Which launchd's jobs are meant.
enum class JobDomain { userLaunchd };

/// Where the login items that are embedded in an application lie in its bundle.
inline constexpr std::string_view loginItemsFolder = "Contents/Library/LoginItems";

/// The entry of a job that names it, and the one that is true when it starts at login.
inline constexpr const char* jobLabelEntry = "Label";
inline constexpr const char* jobOnDemandEntry = "OnDemand";

/// The login items that are embedded in the host, and the user's jobs.
class ServiceManagement {
public:
    virtual ~ServiceManagement() = default;

    /// Switches the embedded application's login item on, which also starts it, or off, which also stops it.
    /// Whether that worked shows in what runs afterwards.
    virtual void loginItemSetEnabled(BundleIdentifier identifier, bool enabled) = 0;

    /// The domain's jobs, a dictionary each with jobLabelEntry and jobOnDemandEntry; none when there is no
    /// list.
    [[nodiscard]] virtual std::optional<std::vector<Dictionary>>
    copyAllJobDictionaries(JobDomain domain) const = 0;
};

} // namespace qbsp::platform

#pragma once

#include "platform/Name.h"
#include "platform/Value.h"

#include <vector>

namespace qbsp {

/// The "OnDemand" flag of the first job with that very label. A job without the flag, and no such job, is NO:
/// a job that is not on demand does not start at login.
[[nodiscard]] bool jobIsOnDemand(const std::vector<platform::Dictionary>& jobs,
                                 platform::BundleIdentifier label);

} // namespace qbsp

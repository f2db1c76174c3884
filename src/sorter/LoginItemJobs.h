#pragma once

#include "platform/Name.h"
#include "platform/Value.h"

#include <vector>

namespace qbsp {

/// The "OnDemand" flag of the first job with exactly that label; false for a job without the flag, and when
/// there is no such job. A job that is not on demand does not start at login.
[[nodiscard]] bool jobIsOnDemand(const std::vector<platform::Dictionary>& jobs,
                                 platform::BundleIdentifier label);

} // namespace qbsp

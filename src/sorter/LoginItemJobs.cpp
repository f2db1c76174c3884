#include "sorter/LoginItemJobs.h"

#include <algorithm>

namespace qbsp {

bool jobIsOnDemand(const std::vector<platform::Dictionary>& jobs, platform::BundleIdentifier label) {
    // The first job decides, whatever a later one of the same label says.
    const auto job = std::ranges::find_if(jobs, [label](const platform::Dictionary& candidate) {
        return platform::stringEntry(candidate, "Label") == label.text;
    });
    return job != jobs.end() && platform::entry(*job, "OnDemand").boolValue();
}

} // namespace qbsp

#include "sorter/LoginItemJobs.h"

#include "platform/ServiceManagement.h"

#include <algorithm>

namespace qbsp {

namespace {

bool isLabelled(const platform::Dictionary& job, platform::BundleIdentifier label) {
    const auto text = platform::stringEntry(job, platform::jobLabelEntry);
    return text == label.text;
}

} // namespace

bool jobIsOnDemand(const std::vector<platform::Dictionary>& jobs, platform::BundleIdentifier label) {
    // A label names one job; should the system list it twice, the first one counts.
    const auto job =
        std::ranges::find_if(jobs, [label](const auto& candidate) { return isLabelled(candidate, label); });
    if (job == jobs.end())
        return false;
    return platform::entry(*job, platform::jobOnDemandEntry).boolValue();
}

} // namespace qbsp

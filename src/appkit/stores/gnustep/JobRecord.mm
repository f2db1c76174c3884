#include "appkit/stores/gnustep/JobRecord.h"

#include "appkit/stores/gnustep/Saving.h"
#include "platform/ServiceManagement.h"

namespace qbsp::appkit {

namespace {

constexpr auto jobsKey = "Jobs";

} // namespace

std::vector<platform::Dictionary> JobRecord::jobs() const {
    const auto stored = platform::entry(storedLists().contents(file_), jobsKey);
    std::vector<platform::Dictionary> jobs;
    if (const auto* array = stored.as<platform::Array>())
        for (const auto& each : *array)
            if (const auto* job = each.as<platform::Dictionary>())
                jobs.push_back(*job);
    return jobs;
}

bool JobRecord::add(const std::string& label) {
    auto jobs = jobsExcept(label);
    jobs.push_back({{platform::jobLabelEntry, label}, {platform::jobOnDemandEntry, true}});
    return write(jobs);
}

bool JobRecord::remove(const std::string& label) {
    return write(jobsExcept(label));
}

std::vector<platform::Dictionary> JobRecord::jobsExcept(const std::string& label) const {
    auto remaining = jobs();
    std::erase_if(remaining, [&](const auto& job) { return labelOf(job) == label; });
    return remaining;
}

bool JobRecord::write(const std::vector<platform::Dictionary>& jobs) {
    storedLists().set(file_, jobsKey, platform::Array(jobs.begin(), jobs.end()));
    return saveOrForget(file_);
}

std::string labelOf(const platform::Dictionary& job) {
    return platform::stringEntry(job, platform::jobLabelEntry).value_or(std::string());
}

} // namespace qbsp::appkit

#include "simulated/SimulatedWorkspace.h"

#include "simulated/Json.h"

#include <algorithm>
#include <tuple>

namespace qbsp::simulated {

namespace {

class SimulatedRunningApplication final : public platform::RunningApplication {
public:
    SimulatedRunningApplication(const World& world, Transcript& transcript)
        : world_(world), transcript_(transcript) {}

    bool terminate() override {
        const bool delivered = !transcript_.fails() && world_.terminates;
        transcript_.record("NSRunningApplication terminate", {}, json(delivered));
        return delivered;
    }

private:
    const World& world_;
    Transcript& transcript_;
};

/// The error of a launch that is made to fail.
constexpr const char* launchFailure = "The application could not be launched.";

} // namespace

void SimulatedWorkspace::addObserver(const std::weak_ptr<platform::TerminationObserver>& observer,
                                     platform::NotificationName name) {
    if (!transcript_.fails())
        observers_.push_back(observer);
    transcript_.record("NSWorkspace addObserver:selector:name:object:",
                       {jsonText("appDied:"), jsonText(name.text), "null"});
}

void SimulatedWorkspace::removeObserver(const platform::TerminationObserver& observer) {
    std::ignore = transcript_.fails();
    std::erase_if(observers_, [&](const auto& added) { return added.lock().get() == &observer; });
    transcript_.record("NSWorkspace removeObserver:", {});
}

bool SimulatedWorkspace::report(const platform::TerminationObserver& observer,
                                const platform::Notification& termination) {
    const auto added = std::ranges::find_if(
        observers_, [&](const auto& candidate) { return candidate.lock().get() == &observer; });
    if (added == observers_.end())
        return false;
    added->lock()->appDied(termination);
    return true;
}

platform::LaunchResult SimulatedWorkspace::launchApplicationAtURL(const platform::URL& url,
                                                                  platform::LaunchOptions options) {
    const bool failed = transcript_.fails();
    platform::LaunchResult result;
    if (!failed && world_.launches)
        result.application = std::make_shared<SimulatedRunningApplication>(world_, transcript_);
    result.error = failed ? std::optional<std::string>(launchFailure) : world_.launchError;
    transcript_.record("NSWorkspace launchApplicationAtURL:options:configuration:error:",
                       {jsonText(url.path()), std::to_string(static_cast<unsigned>(options)), "null"},
                       "[" + json(result.application != nullptr) + ", " + jsonTextOrNull(result.error) + "]");
    return result;
}

bool SimulatedRunningApplications::applicationIsRunning(platform::BundleIdentifier identifier) const {
    const bool runs = !transcript_.fails() && world_.running.contains(identifier.text);
    transcript_.record("QBApplicationIsRunning", {jsonText(identifier.text)}, json(runs));
    return runs;
}

std::int32_t SimulatedLaunchServices::registerURL(const platform::URL& url,
                                                  platform::RegistrationUpdate update) {
    constexpr std::int32_t applicationNotFound = -10814;
    const std::int32_t status = transcript_.fails() ? applicationNotFound : world_.launchServicesStatus;
    transcript_.record("LSRegisterURL",
                       {jsonText(url.path()), json(update == platform::RegistrationUpdate::always)},
                       std::to_string(status));
    return status;
}

void SimulatedServiceManagement::loginItemSetEnabled(platform::BundleIdentifier identifier, bool enabled) {
    std::ignore = transcript_.fails();
    transcript_.record("SMLoginItemSetEnabled", {jsonText(identifier.text), json(enabled)});
}

std::optional<std::vector<platform::Dictionary>>
SimulatedServiceManagement::copyAllJobDictionaries(platform::JobDomain) const {
    auto jobs = transcript_.fails() ? std::nullopt : world_.jobs;
    const auto list = jobs ? platform::Value(platform::Array(jobs->begin(), jobs->end())) : platform::Value();
    transcript_.record("SMCopyAllJobDictionaries", {jsonText("kSMDomainUserLaunchd")}, json(list));
    return jobs;
}

void SimulatedNotificationCenter::postNotificationName(platform::NotificationName name,
                                                       const std::string& object,
                                                       const std::optional<platform::Dictionary>& userInfo,
                                                       platform::NotificationOptions options) {
    std::ignore = transcript_.fails();
    transcript_.record("NSDistributedNotificationCenter postNotificationName:object:userInfo:options:",
                       {jsonText(name.text), jsonText(object), userInfo ? json(*userInfo) : "null",
                        std::to_string(static_cast<unsigned>(options))});
}

} // namespace qbsp::simulated

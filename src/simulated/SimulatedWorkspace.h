#pragma once

#include "platform/DistributedNotificationCenter.h"
#include "platform/LaunchServices.h"
#include "platform/RunningApplications.h"
#include "platform/ServiceManagement.h"
#include "platform/Workspace.h"
#include "simulated/Transcript.h"
#include "simulated/World.h"

#include <memory>
#include <vector>

namespace qbsp::simulated {

class SimulatedWorkspace final : public platform::Workspace {
public:
    SimulatedWorkspace(const World& world, Transcript& transcript) : world_(world), transcript_(transcript) {}

    void addObserver(const std::weak_ptr<platform::TerminationObserver>& observer,
                     platform::NotificationName name) override;
    void removeObserver(const platform::TerminationObserver& observer) override;
    platform::LaunchResult launchApplicationAtURL(const platform::URL& url,
                                                  platform::LaunchOptions options) override;

    /// Reports a termination to that observer. False when it does not observe; nothing is sent then.
    bool report(const platform::TerminationObserver& observer, const platform::Notification& termination);

private:
    const World& world_;
    Transcript& transcript_;
    std::vector<std::weak_ptr<platform::TerminationObserver>> observers_;
};

class SimulatedRunningApplications final : public platform::RunningApplications {
public:
    SimulatedRunningApplications(const World& world, Transcript& transcript)
        : world_(world), transcript_(transcript) {}

    bool applicationIsRunning(platform::BundleIdentifier identifier) const override;

private:
    const World& world_;
    Transcript& transcript_;
};

class SimulatedLaunchServices final : public platform::LaunchServices {
public:
    SimulatedLaunchServices(const World& world, Transcript& transcript)
        : world_(world), transcript_(transcript) {}

    std::int32_t registerURL(const platform::URL& url, platform::RegistrationUpdate update) override;

private:
    const World& world_;
    Transcript& transcript_;
};

class SimulatedServiceManagement final : public platform::ServiceManagement {
public:
    SimulatedServiceManagement(const World& world, Transcript& transcript)
        : world_(world), transcript_(transcript) {}

    void loginItemSetEnabled(platform::BundleIdentifier identifier, bool enabled) override;
    std::optional<std::vector<platform::Dictionary>>
    copyAllJobDictionaries(platform::JobDomain domain) const override;

private:
    const World& world_;
    Transcript& transcript_;
};

class SimulatedNotificationCenter final : public platform::DistributedNotificationCenter {
public:
    explicit SimulatedNotificationCenter(Transcript& transcript) : transcript_(transcript) {}

    void postNotificationName(platform::NotificationName name, const std::string& object,
                              const std::optional<platform::Dictionary>& userInfo,
                              platform::NotificationOptions options) override;

private:
    Transcript& transcript_;
};

} // namespace qbsp::simulated

#pragma once

#include "platform/LaunchServices.h"
#include "platform/RunningApplications.h"
#include "platform/ServiceManagement.h"
#include "platform/Workspace.h"

#include <memory>
#include <vector>

namespace qbsp::appkit {

class TerminationNotices;

/// The shared workspace. To be used on the main thread, whose run loop delivers the notifications.
class AppKitWorkspace final : public platform::Workspace {
public:
    AppKitWorkspace();
    ~AppKitWorkspace() override;

    AppKitWorkspace(const AppKitWorkspace&) = delete;
    AppKitWorkspace& operator=(const AppKitWorkspace&) = delete;

    void addObserver(const std::weak_ptr<platform::TerminationObserver>& observer,
                     platform::NotificationName name) override;

    void removeObserver(const platform::TerminationObserver& observer) override;

    [[nodiscard]] platform::LaunchResult launchApplicationAtURL(const platform::URL& url,
                                                                platform::LaunchOptions options) override;

private:
    std::vector<std::unique_ptr<TerminationNotices>> notices_;
};

/// The applications that are actually running: not one that was killed, nor a process that merely has the
/// name or the process number of one.
class AppKitRunningApplications final : public platform::RunningApplications {
public:
    [[nodiscard]] bool applicationIsRunning(platform::BundleIdentifier identifier) const override;
};

/// The Launch Services database. A system without one returns success for any application that it could
/// launch.
class AppKitLaunchServices final : public platform::LaunchServices {
public:
    [[nodiscard]] std::int32_t registerURL(const platform::URL& url,
                                           platform::RegistrationUpdate update) override;
};

/// The login items embedded in the main bundle, and the user's jobs.
class AppKitServiceManagement final : public platform::ServiceManagement {
public:
    void loginItemSetEnabled(platform::BundleIdentifier identifier, bool enabled) override;

    [[nodiscard]] std::optional<std::vector<platform::Dictionary>>
    copyAllJobDictionaries(platform::JobDomain domain) const override;
};

} // namespace qbsp::appkit

#pragma once

#include "platform/LaunchServices.h"
#include "platform/RunningApplications.h"
#include "platform/ServiceManagement.h"
#include "platform/Workspace.h"

#include <functional>
#include <memory>

namespace qbsp::contracts {

inline constexpr platform::BundleIdentifier idleIdentifier{"org.example.Idle"};

/// An application that can be started and waits to be asked to quit.
class ApplicationsStage {
public:
    static std::unique_ptr<ApplicationsStage> simulated();
    static std::unique_ptr<ApplicationsStage> appKit();

    virtual ~ApplicationsStage() = default;

    [[nodiscard]] virtual platform::Workspace& workspace() = 0;
    [[nodiscard]] virtual platform::RunningApplications& runningApplications() = 0;
    [[nodiscard]] virtual platform::LaunchServices& launchServices() = 0;
    [[nodiscard]] virtual platform::ServiceManagement& serviceManagement() = 0;

    /// The path of the application, and a path without one; to be called before each use.
    [[nodiscard]] virtual platform::URL application() = 0;
    [[nodiscard]] virtual platform::URL nothing() = 0;

    /// Waits until the application that was launched runs.
    virtual void awaitLaunch() = 0;

    /// Starts the application other than by the workspace.
    virtual void start() = 0;

    /// Every process of the application ends; the observers that still exist are notified.
    virtual void end(const std::vector<std::shared_ptr<platform::TerminationObserver>>& observers) = 0;

    /// Waits for the condition, which depends on other processes.
    [[nodiscard]] virtual bool eventually(const std::function<bool()>& condition) = 0;

    /// Makes the embedded application of that identifier a job of the user.
    virtual void makeJob(platform::BundleIdentifier identifier) = 0;
};

} // namespace qbsp::contracts

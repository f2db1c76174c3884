#pragma once

#include "platform/Name.h"
#include "platform/URL.h"
#include "platform/Value.h"

#include <memory>
#include <optional>
#include <string>

namespace qbsp::platform {

/// A notification, as far as the pane reads it.
struct Notification {
    Dictionary userInfo;
};

/// The entry in a termination's user information that holds the application's bundle identifier.
inline constexpr const char* NSApplicationBundleIdentifier = "NSApplicationBundleIdentifier";

/// Is notified of applications that terminated.
class TerminationObserver {
public:
    virtual ~TerminationObserver() = default;

    /// An application terminated: the one that NSApplicationBundleIdentifier in the user information names.
    virtual void appDied(const Notification& notification) = 0;
};

/// An application that this process launched.
class RunningApplication {
public:
    virtual ~RunningApplication() = default;

    /// Asks it to quit. False when the request could not be delivered.
    [[nodiscard]] virtual bool terminate() = 0;
};

/// The result of a launch: an application, an error, both or neither.
struct LaunchResult {
    std::shared_ptr<RunningApplication> application;
    std::optional<std::string> error; ///< the error's description
};

enum class LaunchOptions : unsigned { withoutActivation = 512 };

/// The user's workspace: launches applications and reports when one terminates.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Sends appDied() for every notification of that name, from any sender, until the observer is removed or
    /// gone. Does not keep the observer alive.
    virtual void addObserver(const std::weak_ptr<TerminationObserver>& observer, NotificationName name) = 0;

    /// Ends everything that the observer was added for; does nothing when that was nothing.
    virtual void removeObserver(const TerminationObserver& observer) = 0;

    /// Launches the application at that URL, with no configuration. A success reports no error.
    [[nodiscard]] virtual LaunchResult launchApplicationAtURL(const URL& url, LaunchOptions options) = 0;
};

} // namespace qbsp::platform

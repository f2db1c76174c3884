#pragma once

namespace qbsp::platform {

class Alerts;
class Bundles;
class DistributedNotificationCenter;
class FileManager;
class Host;
class LaunchServices;
class Log;
class OpenPanels;
class Preferences;
class ProcessInfo;
class PropertyLists;
class RunLoop;
class RunningApplications;
class Runtime;
class ServiceManagement;
class StringComparison;
class UserDefaults;
class Workspace;

/// Every service that the pane asks, bundled once. The owner of the services keeps them as long as the pane.
struct Services {
    Host& host;
    ProcessInfo& processInfo;
    Runtime& runtime;
    Bundles& bundles;
    Log& log;
    RunLoop& runLoop;
    StringComparison& strings;
    UserDefaults& userDefaults;
    Preferences& preferences;
    DistributedNotificationCenter& notifications;
    Workspace& workspace;
    RunningApplications& runningApplications;
    LaunchServices& launchServices;
    ServiceManagement& serviceManagement;
    FileManager& files;
    PropertyLists& propertyLists;
    Alerts& alerts;
    OpenPanels& openPanels;
};

/// The services of a platform, which has each as a member of that name. A test replaces one by deriving from
/// a platform and declaring a member of the same name.
template <class Platform>
[[nodiscard]] Services servicesOf(Platform& platform) {
    return {.host = platform.host,
            .processInfo = platform.processInfo,
            .runtime = platform.runtime,
            .bundles = platform.bundles,
            .log = platform.log,
            .runLoop = platform.runLoop,
            .strings = platform.strings,
            .userDefaults = platform.userDefaults,
            .preferences = platform.preferences,
            .notifications = platform.notifications,
            .workspace = platform.workspace,
            .runningApplications = platform.runningApplications,
            .launchServices = platform.launchServices,
            .serviceManagement = platform.serviceManagement,
            .files = platform.files,
            .propertyLists = platform.propertyLists,
            .alerts = platform.alerts,
            .openPanels = platform.openPanels};
}

} // namespace qbsp::platform

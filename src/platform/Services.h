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

/// Every service that the pane asks, bundled once. Whoever makes the pane owns them and keeps them as long.
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

} // namespace qbsp::platform

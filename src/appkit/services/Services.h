#pragma once

#include "appkit/services/Applications.h"
#include "appkit/services/Dialogs.h"
#include "appkit/services/DistributedNotificationCenter.h"
#include "appkit/services/FileManager.h"
#include "appkit/services/HostProcess.h"
#include "appkit/services/Registrar.h"
#include "appkit/services/RunLoop.h"
#include "appkit/services/StringComparison.h"
#include "appkit/stores/Preferences.h"
#include "appkit/stores/PropertyLists.h"
#include "appkit/stores/UserDefaults.h"
#include "platform/Services.h"

namespace qbsp::appkit {

/// All services, implemented with AppKit and Foundation.
struct AppKitServices {
    /// The owner is not retained, because it owns this; pending messages keep it alive. Localized texts come
    /// from the class's bundle.
    AppKitServices(id owner, Class paneClass) : bundles(paneClass), runLoop(owner), openPanels(owner) {}

    /// References to the services, valid as long as this object.
    [[nodiscard]] platform::Services references() { return platform::servicesOf(*this); }

    AppKitHost host;
    AppKitProcessInfo processInfo;
    AppKitRuntime runtime;
    AppKitBundles bundles;
    AppKitLog log;
    AppKitRunLoop runLoop;
    AppKitStringComparison strings;
    AppKitUserDefaults userDefaults;
    std::unique_ptr<platform::Preferences> ownedPreferences = makePreferences();
    platform::Preferences& preferences = *ownedPreferences;
    AppKitDistributedNotificationCenter notifications{log};
    AppKitWorkspace workspace;
    AppKitRunningApplications runningApplications;
    AppKitLaunchServices launchServices;
    AppKitServiceManagement serviceManagement;
    AppKitFileManager files;
    AppKitPropertyLists propertyLists;
    AppKitAlerts alerts;
    AppKitOpenPanels openPanels;
};

} // namespace qbsp::appkit

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

/// All services on AppKit and Foundation.
class AppKitServices {
public:
    /// The owner holds this; messages that wait keep it alive. The pane's texts are in the class's bundle.
    AppKitServices(id owner, Class paneClass) : bundles_(paneClass), runLoop_(owner), openPanels_(owner) {}

    /// References to the services, which live as long as this.
    [[nodiscard]] platform::Services references();

private:
    AppKitHost host_;
    AppKitProcessInfo processInfo_;
    AppKitRuntime runtime_;
    AppKitBundles bundles_;
    AppKitLog log_;
    AppKitRunLoop runLoop_;
    AppKitStringComparison strings_;
    AppKitUserDefaults userDefaults_;
    std::unique_ptr<platform::Preferences> preferences_ = makePreferences();
    AppKitDistributedNotificationCenter notifications_{log_};
    AppKitWorkspace workspace_;
    AppKitRunningApplications runningApplications_;
    AppKitLaunchServices launchServices_;
    AppKitServiceManagement serviceManagement_;
    AppKitFileManager files_;
    AppKitPropertyLists propertyLists_;
    AppKitAlerts alerts_;
    AppKitOpenPanels openPanels_;
};

} // namespace qbsp::appkit

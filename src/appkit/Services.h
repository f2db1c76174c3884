#pragma once

#include "appkit/Alerts.h"
#include "appkit/Bundles.h"
#include "appkit/DistributedNotificationCenter.h"
#include "appkit/FileManager.h"
#include "appkit/Host.h"
#include "appkit/LaunchServices.h"
#include "appkit/Log.h"
#include "appkit/OpenPanels.h"
#include "appkit/Preferences.h"
#include "appkit/ProcessInfo.h"
#include "appkit/PropertyLists.h"
#include "appkit/RunLoop.h"
#include "appkit/RunningApplications.h"
#include "appkit/Runtime.h"
#include "appkit/ServiceManagement.h"
#include "appkit/StringComparison.h"
#include "appkit/UserDefaults.h"
#include "appkit/Workspace.h"
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

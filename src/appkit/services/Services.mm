#include "appkit/services/Services.h"

namespace qbsp::appkit {

platform::Services AppKitServices::references() {
    return {
        .host = host_,
        .processInfo = processInfo_,
        .runtime = runtime_,
        .bundles = bundles_,
        .log = log_,
        .runLoop = runLoop_,
        .strings = strings_,
        .userDefaults = userDefaults_,
        .preferences = *preferences_,
        .notifications = notifications_,
        .workspace = workspace_,
        .runningApplications = runningApplications_,
        .launchServices = launchServices_,
        .serviceManagement = serviceManagement_,
        .files = files_,
        .propertyLists = propertyLists_,
        .alerts = alerts_,
        .openPanels = openPanels_,
    };
}

} // namespace qbsp::appkit

#include "simulated/SimulatedPlatform.h"

namespace qbsp::simulated {

platform::Services SimulatedPlatform::services() {
    return {.host = host,
            .processInfo = host,
            .runtime = runtime,
            .bundles = bundles,
            .log = log,
            .runLoop = runLoop,
            .strings = strings,
            .userDefaults = userDefaults,
            .preferences = preferences,
            .notifications = notifications,
            .workspace = workspace,
            .runningApplications = runningApplications,
            .launchServices = launchServices,
            .serviceManagement = serviceManagement,
            .files = files,
            .propertyLists = propertyLists,
            .alerts = alerts,
            .openPanels = openPanels};
}

} // namespace qbsp::simulated

#pragma once

#include "platform/Services.h"
#include "simulated/SimulatedDialogs.h"
#include "simulated/SimulatedFiles.h"
#include "simulated/SimulatedHost.h"
#include "simulated/SimulatedRunLoop.h"
#include "simulated/SimulatedStores.h"
#include "simulated/SimulatedStrings.h"
#include "simulated/SimulatedWorkspace.h"
#include "simulated/Transcript.h"
#include "simulated/World.h"

namespace qbsp::simulated {

/// A whole platform in memory: it returns what the world says, remembers what it is given, and records every
/// operation. Nothing reaches the machine it runs on.
struct SimulatedPlatform {
    /// The platform as the pane sees it. It must outlive the pane.
    [[nodiscard]] platform::Services services() { return platform::servicesOf(*this); }

    World world;
    Transcript transcript;
    SimulatedHost host{world, transcript};
    SimulatedProcessInfo processInfo{world};
    SimulatedRuntime runtime{world, transcript};
    SimulatedBundles bundles{world, transcript};
    SimulatedLog log{transcript};
    SimulatedRunLoop runLoop{transcript};
    SimulatedStrings strings;
    SimulatedUserDefaults userDefaults{world, transcript};
    SimulatedPreferences preferences{world, transcript};
    SimulatedNotificationCenter notifications{transcript};
    SimulatedWorkspace workspace{world, transcript};
    SimulatedRunningApplications runningApplications{world, transcript};
    SimulatedLaunchServices launchServices{world, transcript};
    SimulatedServiceManagement serviceManagement{world, transcript};
    SimulatedFileManager files{world, transcript};
    SimulatedPropertyLists propertyLists{world, transcript};
    SimulatedAlerts alerts{world, transcript};
    SimulatedOpenPanels openPanels{transcript};
};

} // namespace qbsp::simulated

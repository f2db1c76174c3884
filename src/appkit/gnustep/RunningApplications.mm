#include "appkit/RunningApplications.h"

#include "processes/Applications.h"

#include <string>

namespace qbsp::appkit {

bool AppKitRunningApplications::applicationIsRunning(platform::BundleIdentifier identifier) const {
    return !processes::runningApplications(std::string(identifier.text)).empty();
}

} // namespace qbsp::appkit

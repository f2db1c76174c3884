#include "appkit/services/Applications.h"

#import "appkit/services/gnustep/QBSPTerminationReceiver.h"
#include "applications/Applications.h"

#include <string>

namespace qbsp::appkit {

bool AppKitRunningApplications::applicationIsRunning(platform::BundleIdentifier identifier) const {
    const bool runs = !applications::runningApplications(std::string(identifier.text)).empty();
    if (runs)
        [[NSNotificationCenter defaultCenter] postNotificationName:QBSPApplicationFoundRunning object:nil];
    return runs;
}

namespace {

constexpr std::int32_t noErr = 0;
constexpr std::int32_t kLSApplicationNotFoundErr = -10814;

} // namespace

// There is no database to register with: applications are found by their paths.
std::int32_t AppKitLaunchServices::registerURL(const platform::URL& url, platform::RegistrationUpdate) {
    return applications::identifierOfBundle(url.path()).empty() ? kLSApplicationNotFoundErr : noErr;
}

} // namespace qbsp::appkit

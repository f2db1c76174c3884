#include "appkit/services/Applications.h"

#include "appkit/bridge/Strings.h"
#include "appkit/bridge/URLs.h"

#import <AppKit/AppKit.h>
#import <CoreServices/CoreServices.h>

namespace qbsp::appkit {

bool AppKitRunningApplications::applicationIsRunning(platform::BundleIdentifier identifier) const {
    NSString* bundleIdentifier = nsString(identifier.text);
    return [[NSRunningApplication runningApplicationsWithBundleIdentifier:bundleIdentifier] count] > 0;
}

std::int32_t AppKitLaunchServices::registerURL(const platform::URL& url,
                                               platform::RegistrationUpdate update) {
    return LSRegisterURL((CFURLRef)nsURL(url), update == platform::RegistrationUpdate::always);
}

} // namespace qbsp::appkit

#include "appkit/RunningApplications.h"

#include "appkit/Strings.h"

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

bool AppKitRunningApplications::applicationIsRunning(platform::BundleIdentifier identifier) const {
    NSString* bundleIdentifier = nsString(identifier.text);
    return [[NSRunningApplication runningApplicationsWithBundleIdentifier:bundleIdentifier] count] > 0;
}

} // namespace qbsp::appkit

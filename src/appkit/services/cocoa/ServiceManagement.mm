#include "appkit/services/Applications.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Retained.h"
#include "appkit/bridge/Strings.h"

#import <ServiceManagement/ServiceManagement.h>

#include <tuple>

namespace qbsp::appkit {

void AppKitServiceManagement::loginItemSetEnabled(platform::BundleIdentifier identifier, bool enabled) {
    // Whether it worked shows in what is running afterwards.
    std::ignore = SMLoginItemSetEnabled((CFStringRef)nsString(identifier.text), enabled);
}

std::optional<std::vector<platform::Dictionary>>
AppKitServiceManagement::copyAllJobDictionaries(platform::JobDomain) const {
    const auto jobs = Retained<NSArray*>::adopt((NSArray*)SMCopyAllJobDictionaries(kSMDomainUserLaunchd));
    if (jobs.get() == nil)
        return std::nullopt;
    std::vector<platform::Dictionary> dictionaries;
    NSEnumerator* each = [jobs.get() objectEnumerator];
    while (id job = [each nextObject])
        dictionaries.push_back(dictionaryFromObject(job).value_or(platform::Dictionary()));
    return dictionaries;
}

} // namespace qbsp::appkit

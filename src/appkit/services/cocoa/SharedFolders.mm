#include "appkit/services/SharedFolders.h"

#include "appkit/bridge/Strings.h"
#include "appkit/bridge/URLs.h"

namespace qbsp::appkit {

std::optional<platform::URL> groupContainerURL(platform::ApplicationGroup group) {
    NSFileManager* manager = [NSFileManager defaultManager];
    const SEL container = @selector(containerURLForSecurityApplicationGroupIdentifier:);
    if (![manager respondsToSelector:container]) // there are no groups before 10.8
        return std::nullopt;
    return urlFromNSURL([manager containerURLForSecurityApplicationGroupIdentifier:nsString(group.text)]);
}

NSDictionary* attributesOfNewFolders() {
    return nil;
}

} // namespace qbsp::appkit

#include "defaults/Domains.h"

namespace defaults {

namespace {

// Earlier releases of GNUstep name the domain by the process; later ones by the main bundle's identifier,
// where there is one. In the list that they search it comes before any domain that the host adds.
NSString* findOwnDomain() {
    NSString* const process = [[NSProcessInfo processInfo] processName];
    NSString* const bundle = [[NSBundle mainBundle] bundleIdentifier];
    NSEnumerator* domains = [[[NSUserDefaults standardUserDefaults] searchList] objectEnumerator];
    for (NSString* domain = [domains nextObject]; domain != nil; domain = [domains nextObject])
        if ([domain isEqual:bundle] || [domain isEqual:process])
            return domain;
    return process;
}

} // namespace

NSString* ownDomain() {
    static NSString* const domain = [findOwnDomain() copy];
    return domain;
}

} // namespace defaults

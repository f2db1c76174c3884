#include "appkit/stores/gnustep/StandardDefaults.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Strings.h"
#include "appkit/stores/gnustep/Saving.h"
#include "defaults/Domains.h"
#include "objc/GSTry.h"

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

namespace {

// A volatile domain of its own, before the host's. What is set in the host's domain itself would be written
// by GNUstep, which changes other keys: it clips wide integers, rounds reals, and writes characters such as
// emoji as escapes.
NSString* const shownDomain = @"com.quarrybook.SorterPane.unsaved";

void searchShownDomain(NSUserDefaults* defaults) {
    NSMutableArray* list = [[[defaults searchList] mutableCopy] autorelease];
    const NSUInteger host = [list indexOfObject:defaults::ownDomain()];
    if ([list containsObject:shownDomain] || host == NSNotFound)
        return;
    [list insertObject:shownDomain atIndex:host];
    [defaults setSearchList:list];
}

} // namespace

void showInStandardDefaults(const std::string& key, const platform::Value& value) {
    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
    searchShownDomain(defaults);
    NSMutableDictionary* shown =
        [NSMutableDictionary dictionaryWithDictionary:[defaults volatileDomainForName:shownDomain]];
    [shown setValue:objectFromValue(value) forKey:nsString(key)];
    [defaults removeVolatileDomainForName:shownDomain]; // one of that name may not be set
    [defaults setVolatileDomain:shown forName:shownDomain];
}

void bringStandardDefaultsUpToDate() {
    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
    BOOL done = NO;
    const auto synchronize = [&] {
        done = [defaults synchronize];
    };
    if (objc::tryObjC(synchronize) == nil && done && !storedLists().waits(hostFile()))
        [defaults removeVolatileDomainForName:shownDomain];
}

} // namespace qbsp::appkit

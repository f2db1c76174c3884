#include "appkit/stores/UserDefaults.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Strings.h"
#include "appkit/stores/gnustep/Saving.h"
#include "appkit/stores/gnustep/StandardDefaults.h"

namespace qbsp::appkit {

using platform::DefaultsKey;
using platform::Value;

namespace {

/// The value in one domain of the search list: in memory where it is one of this process alone, else in its
/// file.
Value valueIn(NSString* domain, const std::string& key) {
    NSDictionary* inMemory = [[NSUserDefaults standardUserDefaults] volatileDomainForName:domain];
    if (inMemory != nil)
        return valueFromObject([inMemory objectForKey:nsString(key)]);
    return entry(storedLists().contents(storedLists().fileOfDomain(utf8(domain))), key);
}

} // namespace

Value AppKitUserDefaults::objectForKey(DefaultsKey key) const {
    bringStandardDefaultsUpToDate();
    NSEnumerator* domains = [[[NSUserDefaults standardUserDefaults] searchList] objectEnumerator];
    for (NSString* domain = [domains nextObject]; domain != nil; domain = [domains nextObject])
        if (Value value = valueIn(domain, std::string(key.text)); value.exists())
            return value;
    return {};
}

void AppKitUserDefaults::setBoolForKey(bool value, DefaultsKey key) {
    setObjectForKey(value, key);
}

void AppKitUserDefaults::setObjectForKey(const Value& value, DefaultsKey key) {
    const std::string name(key.text);
    storedLists().set(hostFile(), name, value);
    showInStandardDefaults(name, value);
    saveSoon();
}

bool AppKitUserDefaults::synchronize() {
    saveNow();
    bringStandardDefaultsUpToDate();
    return !storedLists().waits(hostFile());
}

} // namespace qbsp::appkit

#include "appkit/stores/UserDefaults.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Strings.h"

namespace qbsp::appkit {

platform::Value AppKitUserDefaults::objectForKey(platform::DefaultsKey key) const {
    return valueFromObject([[NSUserDefaults standardUserDefaults] objectForKey:nsString(key.text)]);
}

void AppKitUserDefaults::setBoolForKey(bool value, platform::DefaultsKey key) {
    [[NSUserDefaults standardUserDefaults] setBool:value ? YES : NO forKey:nsString(key.text)];
}

void AppKitUserDefaults::setObjectForKey(const platform::Value& value, platform::DefaultsKey key) {
    [[NSUserDefaults standardUserDefaults] setObject:objectFromValue(value) forKey:nsString(key.text)];
}

bool AppKitUserDefaults::synchronize() {
    return [[NSUserDefaults standardUserDefaults] synchronize];
}

} // namespace qbsp::appkit

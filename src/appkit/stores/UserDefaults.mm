#include "appkit/stores/UserDefaults.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Strings.h"
#include "appkit/stores/StandardDefaults.h"

namespace qbsp::appkit {

platform::Value AppKitUserDefaults::objectForKey(platform::DefaultsKey key) const {
    return valueFromObject([[NSUserDefaults standardUserDefaults] objectForKey:nsString(key.text)]);
}

void AppKitUserDefaults::setBoolForKey(bool value, platform::DefaultsKey key) {
    setStandardDefault([NSNumber numberWithBool:value ? YES : NO], nsString(key.text));
}

void AppKitUserDefaults::setObjectForKey(const platform::Value& value, platform::DefaultsKey key) {
    setStandardDefault(objectFromValue(value), nsString(key.text));
}

bool AppKitUserDefaults::synchronize() {
    return flushStandardDefaults();
}

} // namespace qbsp::appkit

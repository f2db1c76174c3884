#include "appkit/stores/StandardDefaults.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Retained.h"
#include "appkit/bridge/Strings.h"
#include "appkit/stores/gnustep/DefaultsFolder.h"
#include "appkit/stores/gnustep/DomainFile.h"

#include <set>
#include <string>
#include <tuple>

namespace qbsp::appkit {

using platform::Dictionary;

namespace {

/// The keys that were set since they were last seen in the file.
std::set<std::string>& unflushedKeys() {
    static std::set<std::string> keys;
    return keys;
}

NSString* hostDomain() {
    return [[NSProcessInfo processInfo] processName];
}

DomainFile hostFile() {
    return DomainFile(utf8(hostDomain()));
}

id valueInHostDomain(const std::string& key) {
    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
    return [[defaults persistentDomainForName:hostDomain()] objectForKey:nsString(key)];
}

/// The values of these keys as they come back from a file.
Dictionary asStored(const std::set<std::string>& keys) {
    NSMutableDictionary* values = [NSMutableDictionary dictionary];
    for (const std::string& key : keys)
        if (id value = valueInHostDomain(key))
            [values setObject:value forKey:nsString(key)];
    NSData* xml = [NSPropertyListSerialization dataWithPropertyList:values
                                                             format:NSPropertyListXMLFormat_v1_0
                                                            options:0
                                                              error:nullptr];
    id stored = [NSPropertyListSerialization propertyListWithData:xml
                                                          options:NSPropertyListImmutable
                                                           format:nullptr
                                                            error:nullptr];
    return dictionaryFromObject(stored).value_or(Dictionary());
}

void forgetKeysInFile() {
    const Dictionary wanted = asStored(unflushedKeys());
    const Dictionary stored = hostFile().contents();
    std::erase_if(unflushedKeys(), [&](const std::string& key) {
        return platform::entry(stored, key) == platform::entry(wanted, key);
    });
}

// A value that is set once more is no change, and would not be written.
void setAnew(const std::string& key) {
    const Retained<id> value(valueInHostDomain(key));
    [[NSUserDefaults standardUserDefaults] removeObjectForKey:nsString(key)];
    [[NSUserDefaults standardUserDefaults] setObject:value.get() forKey:nsString(key)];
}

} // namespace

void setStandardDefault(id value, NSString* key) {
    unflushedKeys().insert(utf8(key));
    // GNUstep writes changes of its own accord too, and takes what it cannot read for empty.
    std::ignore = hostFile().setAsideIfUnreadable();
    [[NSUserDefaults standardUserDefaults] setObject:value forKey:key];
}

bool flushStandardDefaults() {
    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
    // GNUstep would wait for a lock that it cannot take.
    if (lockFolder() == nil || !hostFile().setAsideIfUnreadable() || ![defaults synchronize])
        return false;
    forgetKeysInFile();
    // A flush also counts as a success where the file could not be written, and would not be made again.
    for (const std::string& key : unflushedKeys())
        setAnew(key);
    return unflushedKeys().empty();
}

} // namespace qbsp::appkit

#include "Stores.h"

#include "Description.h"
#include "xdg/UserFolders.h"

#include <array>

namespace standin {

namespace {

NSString* const group = @"Z3K8WQ4N7P.quarry2";
NSString* const clipHotKeyFile = @"clipHotKey.dictionary";
NSString* const tabIsInvisible = @"SorterTabIsInvisible";
NSString* const hiddenApplications = @"UserSpecifiedFullScreenApplications";
const std::array<NSString*, 4> hotKeyKeys{@"Sorter.ClipHotKeyCode", @"Sorter.ClipHotKeyModifiers",
                                          @"Sorter.NoteHotKeyCode", @"Sorter.NoteHotKeyModifiers"};

// Only a new instance sees what another process wrote.
NSDictionary* contentsOfDomain(NSString* domain) {
    NSUserDefaults* defaults = [[[NSUserDefaults alloc] init] autorelease];
    [defaults synchronize];
    return [defaults persistentDomainForName:domain];
}

id valueInDomain(NSString* domain, NSString* key) {
    return [contentsOfDomain(domain) objectForKey:key];
}

// The host says who it is by the name of its process. Later releases of GNUstep name its domain by its
// bundle.
NSString* domainOf(NSString* host) {
    NSString* identifier = @"com.quarrybook.Quarrybook";
    const bool isNamedByBundle = [host isEqual:@"Quarrybook"] && contentsOfDomain(identifier) != nil;
    return isNamedByBundle ? identifier : host;
}

std::string reading(NSString* key, id value) {
    return std::string([key UTF8String]) + "=" + description(value);
}

id sharedClipHotKey() {
    const auto file =
        xdg::dataHome() / "Group Containers" / [group UTF8String] / "Sorter" / [clipHotKeyFile UTF8String];
    NSData* data = [NSData dataWithContentsOfFile:[NSString stringWithUTF8String:file.c_str()]];
    if (data == nil)
        return nil;
    return [NSPropertyListSerialization propertyListWithData:data
                                                     options:NSPropertyListImmutable
                                                      format:nullptr
                                                       error:nullptr];
}

// The pane stores the list for the Sorter of the host's edition, in both builds.
id listOfAnEdition() {
    id list = valueInDomain(@"com.quarrybook.Sorter", hiddenApplications);
    return list == nil ? valueInDomain(@"com.quarrybook.SoloSorter", hiddenApplications) : list;
}

} // namespace

std::string Stores::hotKeys(NSString* host) const {
    std::string all;
    for (NSString* key : hotKeyKeys)
        all += (all.empty() ? "" : " ") + reading(key, valueInDomain(domainOf(host), key));
    return isEmbedded() ? all + " " + reading(clipHotKeyFile, sharedClipHotKey()) : all;
}

std::string Stores::visibility(NSString* host) const {
    return reading(tabIsInvisible, valueInDomain(domainOf(host), tabIsInvisible));
}

bool Stores::tabIsVisible(NSString* host) const {
    id invisible = valueInDomain(domainOf(host), tabIsInvisible);
    return ![invisible respondsToSelector:@selector(boolValue)] || ![invisible boolValue];
}

std::string Stores::hideList() const {
    return reading(hiddenApplications,
                   isEmbedded() ? listOfAnEdition() : valueInDomain(identifier_, hiddenApplications));
}

bool Stores::isEmbedded() const {
    return [identifier_ hasPrefix:group];
}

} // namespace standin

#include "appkit/stores/PropertyLists.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Strings.h"
#include "objc/GSTry.h"

namespace qbsp::appkit {

namespace {

id propertyListIn(NSData* data) {
    id list = nil;
    const auto parse = [&] {
        list = [NSPropertyListSerialization propertyListWithData:data
                                                         options:NSPropertyListImmutable
                                                          format:nullptr
                                                           error:nullptr];
    };
    // A file that is no property list may also raise.
    return objc::tryObjC(parse) == nil ? list : nil;
}

NSData* xmlData(const platform::Dictionary& dictionary) {
    return [NSPropertyListSerialization dataWithPropertyList:objectFromDictionary(dictionary)
                                                      format:NSPropertyListXMLFormat_v1_0
                                                     options:0
                                                       error:nullptr];
}

} // namespace

std::optional<platform::Dictionary>
AppKitPropertyLists::dictionaryWithContentsOfFile(const std::optional<std::string>& path) const {
    NSData* data = path ? [NSData dataWithContentsOfFile:nsString(*path)] : nil;
    return [data length] == 0 ? std::nullopt : dictionaryFromObject(propertyListIn(data));
}

bool AppKitPropertyLists::writeToURL(const platform::Dictionary& dictionary,
                                     const std::optional<platform::URL>& url,
                                     platform::Atomically atomically) {
    const BOOL whole = atomically == platform::Atomically::yes ? YES : NO;
    return url && [xmlData(dictionary) writeToFile:nsString(url->path()) atomically:whole];
}

} // namespace qbsp::appkit

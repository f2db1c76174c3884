#include "appkit/services/FileManager.h"

#include "appkit/bridge/Strings.h"
#include "appkit/services/SharedFolders.h"

namespace qbsp::appkit {

std::optional<platform::URL>
AppKitFileManager::containerURLForSecurityApplicationGroupIdentifier(platform::ApplicationGroup group) {
    return groupContainerURL(group);
}

bool AppKitFileManager::fileExistsAtPath(const std::string& path) const {
    return [[NSFileManager defaultManager] fileExistsAtPath:nsString(path)];
}

std::optional<std::string>
AppKitFileManager::createDirectoryAtURL(const platform::URL& url,
                                        platform::IntermediateDirectories intermediates) {
    NSString* path = nsString(url.path());
    NSError* error = nil;
    const BOOL create = intermediates == platform::IntermediateDirectories::create ? YES : NO;
    [[NSFileManager defaultManager] createDirectoryAtPath:path
                              withIntermediateDirectories:create
                                               attributes:attributesOfNewFolders()
                                                    error:&error];
    return optionalUTF8([error description]);
}

} // namespace qbsp::appkit

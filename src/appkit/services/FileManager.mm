#include "appkit/services/FileManager.h"

#include "appkit/bridge/Strings.h"
#include "appkit/services/GroupContainer.h"

namespace qbsp::appkit {

namespace {

bool isFolder(NSString* path) {
    BOOL folder = NO;
    return [[NSFileManager defaultManager] fileExistsAtPath:path isDirectory:&folder] && folder;
}

std::string description(NSError* error) {
    NSString* text = [error description];
    return text == nil ? "The folder could not be created." : utf8(text);
}

} // namespace

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
    const BOOL made = [[NSFileManager defaultManager] createDirectoryAtPath:path
                                                withIntermediateDirectories:create
                                                                 attributes:nil
                                                                      error:&error];
    // Success is also reported where a plain file lies at the path and nothing was made.
    if (made && isFolder(path))
        return std::nullopt;
    return description(error);
}

} // namespace qbsp::appkit

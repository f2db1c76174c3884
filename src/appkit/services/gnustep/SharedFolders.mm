#include "appkit/services/SharedFolders.h"

#include "xdg/UserFolders.h"

namespace qbsp::appkit {

std::optional<platform::URL> groupContainerURL(platform::ApplicationGroup group) {
    const auto dataFolder = platform::URL::fileURLWithPath(xdg::dataHome());
    return dataFolder.appendingPathComponent("Group Containers").appendingPathComponent(group.text);
}

// The container lies among the user's other data, and other users may be able to look there.
NSDictionary* attributesOfNewFolders() {
    return [NSDictionary dictionaryWithObject:[NSNumber numberWithInt:0700] forKey:NSFilePosixPermissions];
}

} // namespace qbsp::appkit

#include "appkit/services/GroupContainer.h"

#include "xdg/UserFolders.h"

namespace qbsp::appkit {

std::optional<platform::URL> groupContainerURL(platform::ApplicationGroup group) {
    const auto dataFolder = platform::URL::fileURLWithPath(xdg::dataHome());
    return dataFolder.appendingPathComponent("Group Containers").appendingPathComponent(group.text);
}

} // namespace qbsp::appkit

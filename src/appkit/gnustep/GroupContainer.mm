#include "appkit/GroupContainer.h"

#include "appkit/Strings.h"

#include <cstdlib>

namespace qbsp::appkit {

namespace {

std::optional<std::string> absolutePathIn(const char* variable) {
    const char* path = std::getenv(variable);
    const bool isAbsolute = path != nullptr && *path == '/';
    return isAbsolute ? std::optional<std::string>(path) : std::nullopt;
}

std::string homeFolder() {
    return absolutePathIn("HOME").value_or(utf8(NSHomeDirectory()));
}

std::string userDataFolder() {
    return absolutePathIn("XDG_DATA_HOME")
        .value_or(platform::appendingPathComponent(homeFolder(), ".local/share"));
}

} // namespace

std::optional<platform::URL> groupContainerURL(platform::ApplicationGroup group) {
    const auto dataFolder = platform::URL::fileURLWithPath(userDataFolder());
    return dataFolder.appendingPathComponent("Group Containers").appendingPathComponent(group.text);
}

} // namespace qbsp::appkit

#include "xdg/UserFolders.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace xdg {

namespace {

std::filesystem::path environmentPath(const char* variable) {
    const char* value = std::getenv(variable);
    return value == nullptr ? std::filesystem::path() : std::filesystem::path(value);
}

std::filesystem::path home() {
    auto fromEnvironment = environmentPath("HOME");
    if (fromEnvironment.is_absolute())
        return fromEnvironment;
    const passwd* user = getpwuid(getuid());
    return user == nullptr ? "/" : user->pw_dir;
}

// A relative path in one of these variables is invalid and counts as none.
std::filesystem::path folder(const char* variable, const char* belowHome) {
    const auto fromEnvironment = environmentPath(variable);
    return fromEnvironment.is_absolute() ? fromEnvironment : home() / belowHome;
}

} // namespace

std::filesystem::path configHome() {
    return folder("XDG_CONFIG_HOME", ".config");
}

std::filesystem::path dataHome() {
    return folder("XDG_DATA_HOME", ".local/share");
}

std::filesystem::path stateHome() {
    return folder("XDG_STATE_HOME", ".local/state");
}

} // namespace xdg

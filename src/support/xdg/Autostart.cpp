#include "xdg/Autostart.h"

#include "xdg/UserFolders.h"
#include "xdg/WholeFile.h"

#include <fstream>
#include <iterator>
#include <system_error>

namespace xdg {

Autostart Autostart::ofUser() {
    return Autostart(configHome() / "autostart");
}

namespace {

// Anything but a file, a folder in its place say, has no text.
std::string textOf(const std::filesystem::path& file) {
    std::error_code failure;
    if (!std::filesystem::is_regular_file(file, failure))
        return {};
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

} // namespace

std::optional<std::string> Autostart::program(const std::string& identifier) const {
    const auto entry = parsedDesktopEntry(textOf(file(identifier)));
    if (!entry || !entry->enabled)
        return std::nullopt;
    return entry->program;
}

bool Autostart::add(const std::string& identifier, const DesktopEntry& application) const {
    return writeWhole(file(identifier), desktopEntryText(application));
}

bool Autostart::remove(const std::string& identifier) const {
    std::error_code failure;
    std::filesystem::remove(file(identifier), failure);
    return !failure;
}

std::filesystem::path Autostart::file(const std::string& identifier) const {
    return folder_ / (identifier + ".desktop");
}

} // namespace xdg

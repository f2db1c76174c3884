#include "xdg/Autostart.h"

#include "files/Draft.h"
#include "files/Folders.h"
#include "files/Reading.h"
#include "xdg/UserFolders.h"

namespace xdg {

Autostart Autostart::ofUser() {
    return Autostart(configHome() / "autostart");
}

namespace {

// Longer than any entry; what does not fit was not written for a desktop.
constexpr std::size_t largestEntry = 1 << 20;

} // namespace

std::optional<std::string> Autostart::program(const std::string& identifier) const {
    const auto entry = parsedDesktopEntry(files::readWhole(file(identifier), largestEntry).contents);
    if (!entry || !entry->enabled)
        return std::nullopt;
    return entry->program;
}

std::error_code Autostart::add(const std::string& identifier, const DesktopEntry& application) const {
    return files::writeWhole(file(identifier), desktopEntryText(application));
}

std::error_code Autostart::remove(const std::string& identifier) const {
    std::error_code failure;
    const bool removed = std::filesystem::remove(file(identifier), failure);
    return removed ? files::syncFolder(folder_) : failure;
}

std::filesystem::path Autostart::file(const std::string& identifier) const {
    return folder_ / (identifier + ".desktop");
}

} // namespace xdg

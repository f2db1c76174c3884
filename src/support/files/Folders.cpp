#include "files/Folders.h"

#include "files/Calls.h"
#include "files/Opening.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {

namespace fs = std::filesystem;

namespace {

std::error_code makeFolder(const fs::path& folder) {
    if (const auto failure = attempt([&] { return mkdir(folder.c_str(), S_IRWXU); }))
        return failure == std::errc::file_exists ? std::error_code() : failure;
    // The umask may have taken rights of the owner's.
    return attempt([&] { return chmod(folder.c_str(), S_IRWXU); });
}

/// Whether that is why a link could not be read.
bool isNoLink(std::error_code failure) {
    return failure == std::errc::invalid_argument || failure == std::errc::no_such_file_or_directory ||
           failure == std::errc::not_a_directory;
}

} // namespace

std::error_code makeFolders(const fs::path& folder) {
    std::error_code failure;
    if (folder.empty() || fs::is_directory(folder, failure))
        return {};
    const fs::path parent = folder.parent_path();
    if (parent != folder)
        failure = makeFolders(parent);
    if (!failure)
        failure = makeFolder(folder);
    return failure ? failure : syncFolder(parent);
}

std::error_code syncFolder(const fs::path& folder) {
    const auto descriptor = openFile(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
    if (!descriptor.isOpen())
        return lastError();
    const auto failure = attempt([&] { return fsync(descriptor.number()); });
    // Some file systems keep names safe without being asked, and refuse to be.
    return failure == std::errc::invalid_argument ? std::error_code() : failure;
}

std::error_code followLinks(fs::path& file) {
    constexpr int links = 40; // as many as the system follows
    fs::path place = file;
    for (int followed = 0; followed < links; ++followed) {
        std::error_code failure;
        const fs::path target = fs::read_symlink(place, failure);
        if (isNoLink(failure)) {
            file = place;
            return {};
        }
        if (failure)
            return failure;
        place = place.parent_path() / target;
    }
    return {};
}

} // namespace files

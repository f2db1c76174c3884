#include "files/Folders.h"

#include "files/Calls.h"
#include "files/Descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {

namespace fs = std::filesystem;

namespace {

std::error_code makeFolder(const fs::path& folder) {
    if (mkdir(folder.c_str(), S_IRWXU) != 0)
        return errno == EEXIST ? std::error_code() : lastError();
    // The umask may have taken rights of the owner's.
    return errorOf(chmod(folder.c_str(), S_IRWXU));
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
    const Descriptor descriptor(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
    if (!descriptor.isOpen())
        return lastError();
    const auto failure = errorOf(uninterrupted([&] { return fsync(descriptor.number()); }));
    // Some file systems keep names safe without being asked, and refuse to be.
    return failure == std::errc::invalid_argument ? std::error_code() : failure;
}

fs::path whereLinksLead(const fs::path& file) {
    constexpr int links = 40; // as many as the system follows
    fs::path place = file;
    std::error_code failure;
    for (int followed = 0; followed < links && fs::is_symlink(place, failure); ++followed)
        place = place.parent_path() / fs::read_symlink(place, failure);
    return fs::is_symlink(place, failure) ? file : place;
}

} // namespace files

#include "files/Draft.h"

#include "files/Calls.h"
#include "files/Folders.h"
#include "files/Leftovers.h"
#include "files/Opening.h"
#include "files/Reading.h"
#include "processes/Descriptor.h"

#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace files {

namespace fs = std::filesystem;

namespace {

constexpr mode_t ownerAlone = S_IRUSR | S_IWUSR;

std::string beginningOfDrafts(const fs::path& target) {
    return "." + target.filename().string() + ".draft-";
}

std::error_code writeAll(const processes::Descriptor& file, std::string_view content) {
    while (!content.empty()) {
        const auto count =
            uninterrupted([&] { return write(file.number(), content.data(), content.size()); });
        if (count < 0)
            return lastError();
        if (count == 0)
            return make_error_code(std::errc::io_error);
        content.remove_prefix(static_cast<std::size_t>(count));
    }
    return {};
}

/// Gives the file the owner, the group and the permissions. A group that the user is not in cannot be given;
/// the user's own may then do what everybody may.
std::error_code give(const processes::Descriptor& file, const struct stat& wanted) {
    mode_t permissions = wanted.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);

    struct stat status {};

    if (const auto failure = attempt([&] { return fstat(file.number(), &status); }))
        return failure;
    if (status.st_uid != wanted.st_uid || status.st_gid != wanted.st_gid) {
        const auto failure = attempt([&] { return fchown(file.number(), wanted.st_uid, wanted.st_gid); });
        const bool isOwned = status.st_uid == wanted.st_uid;
        if (failure && (failure != std::errc::operation_not_permitted || !isOwned))
            return failure;
        if (failure)
            permissions &= ~mode_t{S_IRWXG} | (permissions & S_IRWXO) << 3U;
    }
    return attempt([&] { return fchmod(file.number(), permissions); });
}

/// Gives the file what the one that it replaces has.
std::error_code admit(const processes::Descriptor& file, const fs::path& replaced) {
    struct stat status {};

    const auto failure = attempt([&] { return stat(replaced.c_str(), &status); });
    if (failure == std::errc::no_such_file_or_directory)
        return attempt([&] { return fchmod(file.number(), ownerAlone); });
    return failure ? failure : give(file, status);
}

std::error_code check(const fs::path& file, std::string_view content) {
    const Reading reading = readWhole(file, content.size());
    if (reading.error)
        return reading.error;
    const bool isSame = reading.outcome == Reading::Outcome::contents && reading.contents == content;
    return isSame ? std::error_code() : make_error_code(std::errc::io_error);
}

} // namespace

Draft::Draft(fs::path target)
    : target_(std::move(target)), path_(passingName(target_.parent_path(), beginningOfDrafts(target_))) {
    removeLeftovers(target_.parent_path().empty() ? "." : target_.parent_path(), beginningOfDrafts(target_));
}

Draft::~Draft() {
    if (!placed_)
        unlink(path_.c_str());
}

std::error_code Draft::write(std::string_view content) const {
    {
        const auto file = openFile(path_, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, ownerAlone);
        if (!file.isOpen())
            return lastError();
        if (const auto failure = writeAll(file, content))
            return failure;
        if (const auto failure = admit(file, target_))
            return failure;
        if (const auto failure = attempt([&] { return fsync(file.number()); }))
            return failure;
    }
    return check(path_, content);
}

std::error_code Draft::place() {
    if (const auto failure = attempt([&] { return rename(path_.c_str(), target_.c_str()); }))
        return failure;
    placed_ = true;
    return syncFolder(target_.parent_path());
}

std::error_code writeWhole(const fs::path& file, std::string_view content) {
    fs::path place = file;
    auto failure = makeFolders(file.parent_path());
    if (!failure)
        failure = followLinks(place);
    if (failure)
        return failure;
    Draft draft(place);
    failure = draft.write(content);
    return failure ? failure : draft.place();
}

} // namespace files

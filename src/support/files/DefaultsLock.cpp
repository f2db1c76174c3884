#include "files/DefaultsLock.h"

#include "files/Calls.h"
#include "files/Folders.h"
#include "files/Leftovers.h"
#include "files/Owner.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <tuple>
#include <unistd.h>

namespace files {

namespace fs = std::filesystem;

namespace {

// What GNUstep's defaults go by. A lock is held for some milliseconds; one that the clock was set back under
// has a date to come.
constexpr std::time_t staleAfter = 20;
constexpr std::chrono::milliseconds betweenTries{10};

constexpr auto ownerName = "owner";
constexpr std::string_view beginningOfOurs = ".taking-";

bool isStale(const fs::path& lock, const struct stat& status) {
    std::error_code failure;
    switch (lifeOf(fs::read_symlink(lock / ownerName, failure).string())) {
    case Life::alive:
        return false;
    case Life::ended:
        return true;
    default:
        return std::abs(std::time(nullptr) - status.st_mtime) > staleAfter;
    }
}

/// Removes the lock of that number. It is moved away first, so that another that took its place meanwhile is
/// put back.
std::error_code removeLock(const fs::path& lock, ino_t number) {
    const fs::path away = passingName(lock.parent_path(), beginningOfOurs);
    if (rename(lock.c_str(), away.c_str()) != 0)
        return lastError();

    struct stat status {};

    if (lstat(away.c_str(), &status) == 0 && status.st_ino != number)
        return errorOf(renameat2(AT_FDCWD, away.c_str(), AT_FDCWD, lock.c_str(), RENAME_NOREPLACE));
    // What stays of it is no lock any more, and goes with the leftovers.
    std::error_code ignored;
    fs::remove_all(away, ignored);
    return {};
}

/// Makes the lock, with its owner in it, in one step; EEXIST when there is one.
std::error_code makeLock(const fs::path& lock) {
    const fs::path draft = passingName(lock.parent_path(), beginningOfOurs);
    if (mkdir(draft.c_str(), S_IRWXU) != 0)
        return lastError();
    auto failure = errorOf(symlink(thisProcess().c_str(), (draft / ownerName).c_str()));
    if (!failure)
        failure = errorOf(renameat2(AT_FDCWD, draft.c_str(), AT_FDCWD, lock.c_str(), RENAME_NOREPLACE));
    if (failure) {
        std::error_code ignored;
        fs::remove_all(draft, ignored);
    }
    // Where the file system cannot do that, the lock goes without an owner.
    return failure == std::errc::invalid_argument ? errorOf(mkdir(lock.c_str(), S_IRWXU)) : failure;
}

} // namespace

bool Patience::wait(Duration shortly) {
    const auto now = Clock::now();
    if (now - lastWait_ > pause_)
        begin_ = now;
    // What was done between two waits in a row is part of the wait.
    const bool goesOn = now - begin_ < most_;
    lastWait_ = now;
    if (goesOn)
        std::this_thread::sleep_for(shortly);
    return goesOn;
}

fs::path DefaultsLock::placeIn(const fs::path& defaultsFolder) {
    return defaultsFolder / ".lck" / ".GNUstepDefaults.lck";
}

DefaultsLock::DefaultsLock(const fs::path& defaultsFolder, Patience& patience)
    : place_(placeIn(defaultsFolder)) {
    if (const auto failure = makeFolders(place_.parent_path()))
        obstacle_ = "cannot be made: " + failure.message();
    else
        take(patience);
}

// One that was held too long may have been taken for stale, and be another's by now.
DefaultsLock::~DefaultsLock() {
    struct stat status {};

    if (held_ && lstat(place_.c_str(), &status) == 0 && status.st_ino == made_)
        // One that cannot be removed is stale as soon as its owner has ended, or it is old enough.
        std::ignore = removeLock(place_, made_);
}

void DefaultsLock::take(Patience& patience) {
    removeLeftovers(place_.parent_path(), beginningOfOurs);
    do {
        const auto failure = makeLock(place_);

        struct stat status {};

        held_ = !failure && lstat(place_.c_str(), &status) == 0;
        made_ = status.st_ino;
        if (!held_ && failure != std::errc::file_exists) {
            obstacle_ = "cannot be made: " + failure.message();
            return;
        }
    } while (!held_ && mayTryAgain(patience));
}

bool DefaultsLock::mayTryAgain(Patience& patience) {
    struct stat status {};

    if (lstat(place_.c_str(), &status) == 0 && isStale(place_, status)) {
        const auto failure = removeLock(place_, status.st_ino);
        if (!failure)
            return removedStale_ = true;
        obstacle_ = "is stale and cannot be removed: " + failure.message();
        if (failure != std::errc::no_such_file_or_directory)
            return false;
    }
    obstacle_ = "is held by another process";
    return patience.wait(betweenTries);
}

} // namespace files

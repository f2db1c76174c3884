#include "files/DefaultsLock.h"

#include "files/Calls.h"
#include "files/Folders.h"
#include "files/Leftovers.h"
#include "files/Owner.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
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

/// Moves the folder to the lock's place; EEXIST when there is a lock.
std::error_code moveTo(const fs::path& folder, const fs::path& lock) {
    return attempt(
        [&] { return renameat2(AT_FDCWD, folder.c_str(), AT_FDCWD, lock.c_str(), RENAME_NOREPLACE); });
}

/// Removes the lock of that number. It is moved away first, so that another that took its place meanwhile is
/// put back.
std::error_code removeLock(const fs::path& lock, ino_t number) {
    const fs::path away = passingName(lock.parent_path(), beginningOfOurs);
    if (const auto failure = attempt([&] { return rename(lock.c_str(), away.c_str()); }))
        return failure;

    struct stat status {};

    if (lstat(away.c_str(), &status) == 0 && status.st_ino != number)
        return moveTo(away, lock);
    // What stays of it is no lock any more, and goes with the leftovers. Nearly all hold their owner alone.
    std::error_code ignored;
    unlink((away / ownerName).c_str());
    if (rmdir(away.c_str()) != 0)
        fs::remove_all(away, ignored);
    return {};
}

/// Makes a folder, and says what its number is. There is none after an error.
std::error_code makeNumbered(const fs::path& folder, ino_t& number) {
    if (const auto failure = attempt([&] { return mkdir(folder.c_str(), S_IRWXU); }))
        return failure;

    struct stat status {};

    const auto failure = attempt([&] { return lstat(folder.c_str(), &status); });
    if (failure)
        rmdir(folder.c_str());
    number = status.st_ino;
    return failure;
}

/// Makes the lock, with its owner in it, in one step, and says what its number is; EEXIST when there is one.
std::error_code makeLock(const fs::path& lock, ino_t& number) {
    const fs::path draft = passingName(lock.parent_path(), beginningOfOurs);
    auto failure = makeNumbered(draft, number);
    if (failure)
        return failure;
    failure = attempt([&] { return symlink(thisProcess().c_str(), (draft / ownerName).c_str()); });
    if (!failure)
        failure = moveTo(draft, lock);
    if (failure) {
        std::error_code ignored;
        fs::remove_all(draft, ignored);
    }
    // Where the file system cannot do that, the lock goes without an owner.
    return failure == std::errc::invalid_argument ? makeNumbered(lock, number) : failure;
}

/// The number of the lock that this process could not give back; 0 when there is none.
std::atomic<ino_t>& notGivenBack() {
    static std::atomic<ino_t> number = 0;
    return number;
}

// A later lock may have the number of an earlier one.
bool isNotGivenBack(const fs::path& lock, const struct stat& status) {
    std::error_code failure;
    return status.st_ino == notGivenBack() && fs::read_symlink(lock / ownerName, failure) == thisProcess();
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

DefaultsLock::~DefaultsLock() {
    // One that stays is removed when this process takes the lock again, or by others once it has ended.
    if (held_ && !giveBack())
        notGivenBack() = made_;
}

// One that was held too long may have been taken for stale, and be another's by now.
bool DefaultsLock::giveBack() const {
    struct stat status {};

    const auto failure = attempt([&] { return lstat(place_.c_str(), &status); });
    if (failure)
        return failure == std::errc::no_such_file_or_directory;
    return status.st_ino != made_ || !removeLock(place_, made_);
}

void DefaultsLock::take(Patience& patience) {
    removeLeftovers(place_.parent_path(), beginningOfOurs);
    do {
        const auto failure = makeLock(place_, made_);
        held_ = !failure;
        if (!held_ && failure != std::errc::file_exists) {
            obstacle_ = "cannot be made: " + failure.message();
            return;
        }
    } while (!held_ && mayTryAgain(patience));
}

bool DefaultsLock::mayTryAgain(Patience& patience) {
    struct stat status {};

    const bool isThere = lstat(place_.c_str(), &status) == 0;
    const bool isOurs = isThere && isNotGivenBack(place_, status);
    if (isOurs || (isThere && isStale(place_, status))) {
        const auto failure = removeLock(place_, status.st_ino);
        if (!failure) {
            removedStale_ = removedStale_ || !isOurs;
            return true;
        }
        obstacle_ = "is stale and cannot be removed: " + failure.message();
        if (failure != std::errc::no_such_file_or_directory)
            return false;
    }
    obstacle_ = "is held by another process";
    return patience.wait(betweenTries);
}

} // namespace files

#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <sys/types.h>

namespace files {

/// How long one may wait for others: so much in all from the first wait on, and as much again after a pause
/// in which nobody waited. What an operation does in several steps is held together by it.
class Patience {
public:
    using Duration = std::chrono::milliseconds;

    explicit Patience(Duration most, Duration pause = std::chrono::seconds(3)) : most_(most), pause_(pause) {}

    /// Waits that short time; false, and no wait, when there is no patience left.
    [[nodiscard]] bool wait(Duration shortly);

private:
    using Clock = std::chrono::steady_clock;

    Duration most_;
    Duration pause_;
    Clock::time_point begin_; ///< of the first wait of those that follow each other
    Clock::time_point lastWait_;
};

/// The lock that every GNUstep process of the user takes to write files of the user's defaults, for as long
/// as this exists: a folder below theirs that only one process can make. Ours say in it who took them.
class DefaultsLock {
public:
    /// Where the lock of the files in that folder lies.
    [[nodiscard]] static std::filesystem::path placeIn(const std::filesystem::path& defaultsFolder);

    /// Takes the lock; waits for it as long as there is patience, unless it can never be taken. One whose
    /// owner has ended, or that nobody can still be holding by its date, is removed.
    DefaultsLock(const std::filesystem::path& defaultsFolder, Patience& patience);
    ~DefaultsLock();
    DefaultsLock(const DefaultsLock&) = delete;
    DefaultsLock& operator=(const DefaultsLock&) = delete;

    [[nodiscard]] bool isHeld() const { return held_; }

    /// Why it is not held, in words that follow "the lock ".
    [[nodiscard]] const std::string& obstacle() const { return obstacle_; }

    /// Whether a stale lock was removed.
    [[nodiscard]] bool removedStale() const { return removedStale_; }

private:
    void take(Patience& patience);
    [[nodiscard]] bool giveBack() const;
    [[nodiscard]] bool mayTryAgain(Patience& patience);

    std::filesystem::path place_;
    ino_t made_ = 0; ///< tells the lock that this made from others
    std::string obstacle_;
    bool held_ = false;
    bool removedStale_ = false;
};

} // namespace files

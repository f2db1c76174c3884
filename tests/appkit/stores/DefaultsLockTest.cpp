#include "files/DefaultsLock.h"

#include "Processes.h"
#include "TemporaryFolder.h"
#include "files/Owner.h"

#include <gtest/gtest.h>

#include <fstream>
#include <optional>
#include <thread>
#include <unistd.h>

namespace files {

namespace fs = std::filesystem;

using std::chrono::steady_clock;
using namespace std::chrono_literals;

namespace {

class Lock : public testing::Test {
protected:
    const TemporaryFolder temporary;
    const fs::path folder = temporary.path() / "Defaults";
    const fs::path place = DefaultsLock::placeIn(folder);
    Patience none{0ms};
    Patience some{50ms};

    /// As GNUstep makes it: a folder, of which only the date says how long it has been held.
    void makeGNUstepsLock(std::chrono::seconds age) const {
        fs::create_directories(place);
        fs::last_write_time(place, fs::file_time_type::clock::now() - age);
    }

    void makeOurLock(const std::string& owner) const {
        fs::create_directories(place);
        fs::create_symlink(owner, place / "owner");
    }

    [[nodiscard]] std::ptrdiff_t filesBesideLock() const {
        return std::distance(fs::directory_iterator(place.parent_path()), fs::directory_iterator());
    }
};

} // namespace

TEST_F(Lock, IsTakenAndGivenBackAndLeavesNothing) {
    {
        const DefaultsLock lock(folder, none);
        EXPECT_TRUE(lock.isHeld());
        EXPECT_TRUE(fs::is_directory(place)) << "GNUstep sees a lock";
        EXPECT_EQ(fs::status(folder).permissions(), fs::perms(0700));
    }
    EXPECT_EQ(filesBesideLock(), 0);
}

TEST_F(Lock, IsNotTakenWhileAnotherHasIt) {
    const DefaultsLock first(folder, none);

    const DefaultsLock second(folder, some);

    EXPECT_FALSE(second.isHeld());
    EXPECT_EQ(second.obstacle(), "is held by another process");
    EXPECT_EQ(filesBesideLock(), 1);
}

TEST_F(Lock, IsWaitedForNoLongerThanThereIsPatienceAndNotOnceMoreSoon) {
    makeGNUstepsLock(0s);
    Patience patience{500ms};
    const auto begin = steady_clock::now();

    EXPECT_FALSE(DefaultsLock(folder, patience).isHeld());
    EXPECT_GE(steady_clock::now() - begin, 500ms);
    const auto between = steady_clock::now();
    EXPECT_FALSE(DefaultsLock(folder, patience).isHeld());

    EXPECT_LT(steady_clock::now() - between, 400ms);
}

TEST_F(Lock, IsTakenAsSoonAsAnotherGivesItBack) {
    std::optional<DefaultsLock> first(std::in_place, folder, none);
    Patience much{10s};
    std::thread other([&] { first.reset(); });

    const DefaultsLock second(folder, much);

    EXPECT_TRUE(second.isHeld());
    other.join();
}

TEST_F(Lock, OfGNUstepIsStaleByItsDateInThePastAndInTheFuture) {
    for (const auto age : {21s, 100'000s, -21s, -100'000s}) {
        makeGNUstepsLock(age);
        const DefaultsLock lock(folder, none);
        EXPECT_TRUE(lock.isHeld()) << age.count();
        EXPECT_TRUE(lock.removedStale());
    }
    EXPECT_EQ(filesBesideLock(), 0);
}

TEST_F(Lock, OfGNUstepIsHeldWhileItIsYoung) {
    for (const auto age : {0s, 15s, -15s}) {
        makeGNUstepsLock(age);
        EXPECT_FALSE(DefaultsLock(folder, none).isHeld()) << age.count();
    }
}

TEST_F(Lock, OfAProcessThatEndedIsRemovedAtOnce) {
    makeOurLock(textOfEndedProcess());

    const DefaultsLock lock(folder, none);

    EXPECT_TRUE(lock.isHeld());
    EXPECT_TRUE(lock.removedStale());
}

TEST_F(Lock, OfAProcessThatLivesIsHeldHoweverOldItIs) {
    makeOurLock(thisProcess());
    fs::last_write_time(place, fs::file_time_type::clock::now() - 1h);

    EXPECT_FALSE(DefaultsLock(folder, none).isHeld());
}

TEST_F(Lock, OfAnotherMachineIsStaleByItsDate) {
    makeOurLock("12-34-another-machine");
    EXPECT_FALSE(DefaultsLock(folder, none).isHeld());

    fs::last_write_time(place, fs::file_time_type::clock::now() - 1h);
    EXPECT_TRUE(DefaultsLock(folder, none).isHeld());
}

TEST_F(Lock, ThatIsAFileIsRemovedOnceItIsOld) {
    fs::create_directories(place.parent_path());
    std::ofstream(place) << "no folder";
    EXPECT_FALSE(DefaultsLock(folder, none).isHeld());

    fs::last_write_time(place, fs::file_time_type::clock::now() - 1h);
    EXPECT_TRUE(DefaultsLock(folder, none).isHeld());
}

TEST_F(Lock, ThatHoldsForeignFilesIsRemovedWithThem) {
    makeGNUstepsLock(1h);
    fs::create_directories(place / "full" / "of");
    fs::last_write_time(place, fs::file_time_type::clock::now() - 1h);

    EXPECT_TRUE(DefaultsLock(folder, none).isHeld());
    EXPECT_EQ(filesBesideLock(), 0);
}

TEST_F(Lock, CannotBeTakenAndIsNotWaitedForWhereItsFolderIsAFile) {
    fs::create_directories(folder);
    std::ofstream(place.parent_path()) << "no folder";
    Patience much{10s};
    const auto begin = steady_clock::now();

    const DefaultsLock lock(folder, much);

    EXPECT_FALSE(lock.isHeld());
    EXPECT_EQ(lock.obstacle(), "cannot be made: Not a directory");
    EXPECT_LT(steady_clock::now() - begin, 1s);
}

TEST_F(Lock, CannotBeTakenAndIsNotWaitedForByAUserWhoMayNotWriteThere) {
    fs::create_directories(place.parent_path());
    fs::permissions(temporary.path(), fs::perms(0755));
    fs::permissions(folder, fs::perms(0755));
    fs::permissions(place.parent_path(), fs::perms(0555));

    const std::string obstacle = asAnotherUser([&] {
        Patience much{10s};
        return DefaultsLock(folder, much).obstacle();
    });

    EXPECT_EQ(obstacle, "cannot be made: Permission denied");
}

TEST_F(Lock, ThatIsStaleButCannotBeRemovedIsNotWaitedFor) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make such a lock";
    makeGNUstepsLock(1h);
    fs::permissions(temporary.path(), fs::perms(0755));
    fs::permissions(folder, fs::perms(0755));
    fs::permissions(place.parent_path(), fs::perms(01777));
    fs::last_write_time(place, fs::file_time_type::clock::now() - 1h);

    // In a folder such as this, everybody removes what is one's own alone.
    const std::string obstacle = asAnotherUser([&] {
        Patience much{10s};
        return DefaultsLock(folder, much).obstacle();
    });

    EXPECT_EQ(obstacle, "is stale and cannot be removed: Operation not permitted");
}

TEST_F(Lock, IsTakenAgainByTheProcessThatCouldNotGiveItBack) {
    fs::permissions(temporary.path(), fs::perms(0777));

    const std::string outcome = asAnotherUser([&] {
        {
            const DefaultsLock lock(folder, none);
            fs::permissions(place.parent_path(), fs::perms(0555));
        }
        fs::permissions(place.parent_path(), fs::perms(0755));
        const DefaultsLock again(folder, none);
        return again.removedStale() ? "was another's" : "is held" + again.obstacle();
    });

    EXPECT_EQ(outcome, "is held");
    EXPECT_EQ(filesBesideLock(), 0);
}

TEST_F(Lock, IsHeldByOneProcessAtATime) {
    constexpr int processes = 4;
    constexpr int turns = 50;
    const fs::path counter = temporary.path() / "counter";
    std::ofstream(counter) << 0;

    runAtOnce(processes, [&] {
        Patience much{60s};
        for (int turn = 0; turn < turns; ++turn) {
            const DefaultsLock lock(folder, much);
            int count = 0;
            std::ifstream(counter) >> count;
            std::ofstream(counter) << count + 1;
        }
    });

    int count = 0;
    std::ifstream(counter) >> count;
    EXPECT_EQ(count, processes * turns);
    EXPECT_EQ(filesBesideLock(), 0);
}

} // namespace files

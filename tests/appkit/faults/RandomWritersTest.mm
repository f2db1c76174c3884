#include "Home.h"
#include "Long.h"
#include "RandomWriter.h"

#include "appkit/stores/PropertyLists.h"
#include "files/DefaultsLock.h"
#include "files/Owner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iostream>
#include <new>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace faults {

namespace fs = std::filesystem;

using namespace qbsp;
using namespace std::chrono_literals;

namespace {

constexpr uid_t nobody = 65534;
constexpr int writers = 2;

fs::path defaults() {
    return home() / "GNUstep/Defaults";
}

platform::Dictionary contentsOfDomain(const std::string& domain) {
    const auto contents =
        appkit::AppKitPropertyLists().dictionaryWithContentsOfFile(defaults() / (domain + ".plist"));
    EXPECT_TRUE(contents) << domain << " should be whole at any time";
    return contents.value_or(platform::Dictionary());
}

/// The text that names a process that has ended.
std::string endedProcess() {
    int channel[2];
    EXPECT_EQ(pipe(channel), 0);
    const pid_t process = fork();
    if (process == 0) {
        const std::string text = files::thisProcess();
        _exit(write(channel[1], text.data(), text.size()) < 0);
    }
    std::string text(200, '\0');
    const auto length = read(channel[0], text.data(), text.size());
    waitpid(process, nullptr, 0);
    close(channel[0]);
    close(channel[1]);
    return text.substr(0, static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
}

/// Two writers, what gets in their way, and the models that their stores are compared with.
class RandomWriters : public testing::Test {
protected:
    RandomWriters() {
        void* const memory =
            mmap(nullptr, writers * sizeof(Model), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        models = static_cast<Model*>(memory);
        for (int writer = 0; writer < writers; ++writer)
            new (models + writer) Model;
        std::cout << "writers with SORTERPANE_SEED=" << seed << std::endl; // before they take a copy of it
    }

    ~RandomWriters() override { munmap(models, writers * sizeof(Model)); }

    void writeAtRandom();

    void start(int writer) {
        processes.at(static_cast<std::size_t>(writer)) =
            startWriter(writer, models[writer], static_cast<unsigned>(random()));
    }

    void killAndStartAgain() {
        const auto writer = random() % writers;
        kill(processes.at(writer), SIGKILL);
        waitpid(processes.at(writer), nullptr, 0);
        ++kills;
        start(static_cast<int>(writer));
    }

    /// Puts a lock in the way, if there is none just now.
    void putLock(std::chrono::seconds date, const std::string& owner) {
        std::error_code failure;
        if (!fs::create_directory(lock, failure))
            return;
        if (!owner.empty())
            fs::create_symlink(owner, lock / "owner", failure);
        fs::last_write_time(lock, fs::file_time_type::clock::now() + date, failure);
        ++locks;
    }

    void holdLock() {
        putLock(0s, "");
        std::this_thread::sleep_for(std::chrono::milliseconds(random() % 400));
        std::error_code failure;
        fs::remove(lock, failure);
    }

    void makeLockUnremovable() {
        putLock(-100s, "");
        fs::permissions(lock.parent_path(), fs::perms(0555));
        std::this_thread::sleep_for(std::chrono::milliseconds(random() % 400));
        fs::permissions(lock.parent_path(), fs::perms(0755));
    }

    void getInTheWay() {
        switch (random() % 6) {
        case 0:
            return putLock(0s, endedProcess());
        case 1:
            return putLock(1000s, "");
        case 2:
            return putLock(-1000s, "");
        case 3:
            return holdLock();
        case 4:
            return makeLockUnremovable();
        default:
            return killAndStartAgain();
        }
    }

    void checkNothingIsLost();
    void checkList();

    const fs::path lock = files::DefaultsLock::placeIn(defaults());
    const char* const given = std::getenv("SORTERPANE_SEED");
    const unsigned seed = given == nullptr ? std::random_device()() : static_cast<unsigned>(std::atol(given));
    std::minstd_rand random{seed};
    Model* models = nullptr;
    std::array<pid_t, writers> processes{};
    int kills = 0;
    int locks = 0;
};

void RandomWriters::checkNothingIsLost() {
    // What is saved while the file is read may be in it or not.
    std::array<std::array<int, keysOfAWriter>, writers> saved{};
    const auto check = [&](auto domain, const std::string& name) {
        for (std::size_t writer = 0; writer < writers; ++writer)
            for (std::size_t key = 0; key < keysOfAWriter; ++key)
                saved.at(writer).at(key) = (models[writer].*domain).saved.at(key);
        const auto contents = contentsOfDomain(name);
        EXPECT_EQ(platform::entry(contents, "theirs"), platform::Value("kept"));
        for (std::size_t writer = 0; writer < writers; ++writer)
            for (std::size_t key = 0; key < keysOfAWriter; ++key) {
                const std::string text = keyOf(static_cast<int>(writer), static_cast<int>(key));
                const int value = platform::entry(contents, text).intValue();
                EXPECT_GE(value, saved.at(writer).at(key)) << name << ": a save of " << text << " was lost";
                EXPECT_LE(value, (models[writer].*domain).set.at(key)) << name << ": " << text;
            }
    };
    check(&Model::sorter, "com.quarrybook.Sorter");
    check(&Model::host, "FaultTests");
}

// Whichever save of the list ended before another began must be gone.
void RandomWriters::checkList() {
    const auto list = platform::entry(contentsOfDomain("com.quarrybook.Sorter"), listKey);
    const auto* entries = list.as<platform::Dictionary>();
    ASSERT_TRUE(entries != nullptr && entries->size() == 1);
    const std::string& name = entries->begin()->first;
    const Model& last = models[name.front() - '0'];
    const Model& other = models[1 - (name.front() - '0')];
    EXPECT_EQ(name.substr(2), std::to_string(last.list.number)) << "its writer saved a later one";
    EXPECT_LE(other.list.began, last.list.ended) << "the other saved one later";
}

void RandomWriters::writeAtRandom() {
    const auto end = std::chrono::steady_clock::now() + (isLong ? 120s : 1s);
    start(0);
    start(1);
    while (std::chrono::steady_clock::now() < end && !HasFailure()) {
        getInTheWay();
        checkNothingIsLost();
    }
    for (int writer = 0; writer < writers; ++writer)
        models[writer].isOver = true;
    for (const pid_t process : processes) {
        int status = -1;
        waitpid(process, &status, 0);
        EXPECT_EQ(status, 0) << "a writer's last save should succeed";
    }
    checkNothingIsLost();
    checkList();
    std::printf("%ld and %ld lists, %d kills, %d locks\n", models[0].listsSet.load(),
                models[1].listsSet.load(), kills, locks);
}

/// Does that as a user whom permissions stop, in a process of its own when this is root's.
void asUser(const std::function<void()>& work) {
    if (geteuid() != 0)
        return work();
    const std::string own = "chown -R nobody " + home().string();
    ASSERT_EQ(std::system(own.c_str()), 0);
    const pid_t process = fork();
    if (process == 0) {
        const bool isOther = setgid(nobody) == 0 && setuid(nobody) == 0;
        EXPECT_TRUE(isOther);
        work();
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? EXIT_FAILURE : EXIT_SUCCESS);
    }
    int status = 0;
    waitpid(process, &status, 0);
    EXPECT_EQ(status, 0);
}

} // namespace

TEST_F(RandomWriters, LoseNoKeyOfEitherWhateverGetsInTheirWay) {
    put({{"GNUstep/Defaults/.lck", ""},
         {"GNUstep/Defaults/FaultTests.plist", "{ theirs = kept; }"},
         {"GNUstep/Defaults/com.quarrybook.Sorter.plist", "{ theirs = kept; }"}},
        home());

    asUser([this] { writeAtRandom(); });
}

} // namespace faults

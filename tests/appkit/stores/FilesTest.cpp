#include "FileContents.h"
#include "FullDisk.h"
#include "Processes.h"
#include "TemporaryFolder.h"
#include "files/Draft.h"
#include "files/Folders.h"
#include "files/Leftovers.h"
#include "files/Owner.h"
#include "files/Reading.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t limit = 1000;

void put(const fs::path& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
}

std::ptrdiff_t filesIn(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

/// A umask, as long as this lives.
class Umask {
public:
    explicit Umask(mode_t mask) : before_(umask(mask)) {}

    ~Umask() { umask(before_); }

    Umask(const Umask&) = delete;
    Umask& operator=(const Umask&) = delete;

private:
    mode_t before_;
};

class WholeFile : public testing::Test {
protected:
    const TemporaryFolder temporary;
    const fs::path folder = temporary.path() / "folder";
    const fs::path file = folder / "a file";

    WholeFile() { fs::create_directory(folder); }
};

using Outcome = Reading::Outcome;

} // namespace

TEST_F(WholeFile, IsReadToItsLastByte) {
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, limit - 1, limit}) {
        put(file, std::string(size, 'x'));

        const Reading reading = readWhole(file, limit);

        EXPECT_EQ(reading.outcome, Outcome::contents);
        EXPECT_EQ(reading.contents, std::string(size, 'x'));
    }
}

TEST_F(WholeFile, IsReadToItsEndThoughItsSizeSaysNothing) {
    const Reading reading = readWhole("/proc/self/maps", 1'000'000);

    EXPECT_EQ(reading.outcome, Outcome::contents);
    EXPECT_GT(reading.contents.size(), limit);
    EXPECT_EQ(readWhole("/proc/self/maps", limit).outcome, Outcome::tooLarge);
}

TEST_F(WholeFile, IsNotReadBeyondTheLimit) {
    put(file, std::string(limit + 1, 'x'));

    EXPECT_EQ(readWhole(file, limit).outcome, Outcome::tooLarge);
}

TEST_F(WholeFile, IsAbsentWhereNothingIs) {
    put(file, "a text");

    EXPECT_EQ(readWhole(folder / "another", limit).outcome, Outcome::absent);
    EXPECT_EQ(readWhole(file / "below a file", limit).outcome, Outcome::absent);
}

TEST_F(WholeFile, CannotBeReadWhereNoFileIs) {
    EXPECT_EQ(readWhole(folder, limit).error, std::errc::is_a_directory);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(readWhole(file, limit).outcome, Outcome::failed);
    fs::create_symlink(folder / "circle", folder / "circle");
    EXPECT_EQ(readWhole(folder / "circle", limit).error, std::errc::too_many_symbolic_link_levels);
}

TEST_F(WholeFile, FailsToBeReadButIsNotAbsentWithoutDescriptors) {
    put(file, "a text");
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{0, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);

    const Reading reading = readWhole(file, limit);

    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(reading.outcome, Outcome::failed);
    EXPECT_EQ(reading.error, std::errc::too_many_files_open);
}

TEST_F(WholeFile, IsItsOwnersAloneWhenItIsNewAndSoAreItsFoldersWhateverTheUmask) {
    for (const mode_t mask : {0U, 077U, 0777U}) {
        const Umask umask(mask);
        const fs::path place = temporary.path() / std::to_string(mask) / "deep";

        EXPECT_FALSE(writeWhole(place / "a file", "a text"));

        EXPECT_EQ(fs::status(place.parent_path()).permissions(), fs::perms(0700));
        EXPECT_EQ(fs::status(place).permissions(), fs::perms(0700));
        EXPECT_EQ(fs::status(place / "a file").permissions(), fs::perms(0600));
    }
}

TEST_F(WholeFile, KeepsItsPermissionsAndItsOwner) {
    put(file, "old");
    fs::permissions(file, fs::perms(0640));
    const bool isRoot = geteuid() == 0;
    if (isRoot) {
        ASSERT_EQ(chown(file.c_str(), 1234, 5678), 0);
    }

    EXPECT_FALSE(writeWhole(file, "new"));

    struct stat status {};

    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(bytesOf(file), "new");
    EXPECT_EQ(status.st_mode & 07777, 0640U);
    EXPECT_EQ(status.st_uid, isRoot ? 1234 : geteuid());
    EXPECT_EQ(status.st_gid, isRoot ? 5678 : getegid());
}

TEST_F(WholeFile, OfAGroupThatTheUserIsNotInIsWrittenAndOpensToNobodyElse) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make such a file";
    constexpr uid_t nobody = 65534;
    put(file, "old");
    fs::permissions(temporary.path(), fs::perms(0755));
    fs::permissions(file, fs::perms(0664));
    ASSERT_EQ(chown(folder.c_str(), nobody, nobody), 0);
    ASSERT_EQ(chown(file.c_str(), nobody, 5678), 0);

    const std::string failure = asAnotherUser([&] { return writeWhole(file, "new").message(); });

    EXPECT_EQ(failure, "Success");
    EXPECT_EQ(bytesOf(file), "new");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0644));
}

TEST_F(WholeFile, OfAnotherOwnerIsLeftAsItIs) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make such a file";
    put(file, "old");
    fs::permissions(temporary.path(), fs::perms(0755));
    fs::permissions(folder, fs::perms(0777));

    const std::string failure = asAnotherUser([&] { return writeWhole(file, "new").message(); });

    EXPECT_EQ(failure, "Operation not permitted");
    EXPECT_EQ(bytesOf(file), "old");
    EXPECT_EQ(filesIn(folder), 1);
}

TEST_F(WholeFile, IsWrittenWhereALinkLeads) {
    fs::create_directory(folder / "elsewhere");
    put(folder / "elsewhere/target", "old");
    fs::create_symlink("elsewhere/target", folder / "second");
    fs::create_symlink("second", file);

    EXPECT_FALSE(writeWhole(file, "new"));

    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
    EXPECT_EQ(bytesOf(folder / "elsewhere/target"), "new");
    EXPECT_EQ(filesIn(folder / "elsewhere"), 1);
}

TEST_F(WholeFile, IsMadeWhereALinkLeadsToNothing) {
    fs::create_symlink(temporary.path() / "target", file);

    EXPECT_FALSE(writeWhole(file, "new"));

    EXPECT_EQ(bytesOf(temporary.path() / "target"), "new");
}

TEST_F(WholeFile, StaysAsItIsWhenTheDiskIsFull) {
    put(file, "old");
    const FullDisk disk(2);

    EXPECT_EQ(writeWhole(file, "new"), std::errc::file_too_large);

    EXPECT_EQ(bytesOf(file), "old");
    EXPECT_EQ(filesIn(folder), 1);
}

TEST_F(WholeFile, IsRefusedWhereAFolderIsAndLeavesNothingBehind) {
    fs::create_directories(file / "full");

    EXPECT_TRUE(writeWhole(file, "new"));
    EXPECT_TRUE(writeWhole(file / "full" / "file" / "..", "new"));

    EXPECT_EQ(filesIn(folder), 1);
}

TEST_F(WholeFile, ClearsTheDraftsOfProcessesThatHaveEndedAndNoOthers) {
    const std::string ended = textOfEndedProcess();
    put(folder / (".a file.draft-" + ended + "~7"), "a draft");
    put(folder / (".a file.draft-" + thisProcess() + "~777"), "being written");
    put(folder / (".another.draft-" + ended + "~7"), "another file's");
    put(folder / ".a file.draft-of-the-user", "not ours");

    EXPECT_FALSE(writeWhole(file, "new"));

    EXPECT_EQ(filesIn(folder), 4);
    EXPECT_FALSE(fs::exists(folder / (".a file.draft-" + ended + "~7")));
}

TEST_F(WholeFile, KeepsTheDraftsOfAnotherMachineForADay) {
    const fs::path draft = folder / ".a file.draft-12-34-another-machine~1";
    put(draft, "a draft");

    EXPECT_FALSE(writeWhole(file, "new"));
    EXPECT_TRUE(fs::exists(draft));

    fs::last_write_time(draft, fs::file_time_type::clock::now() - std::chrono::hours(25));
    EXPECT_FALSE(writeWhole(file, "newer"));
    EXPECT_FALSE(fs::exists(draft));
}

TEST(Owner, IsAliveWhileItsProcessIs) {
    EXPECT_EQ(lifeOf(thisProcess()), Life::alive);
    EXPECT_EQ(lifeOf(textOfEndedProcess()), Life::ended);
}

TEST(Owner, IsAnotherWhenItsNumberIsUsedAnew) {
    const std::string text = thisProcess();
    const auto hyphen = text.find('-');

    EXPECT_EQ(lifeOf(text.substr(0, hyphen + 1) + "1" + text.substr(hyphen + 1)), Life::ended);
}

TEST(Owner, IsUnknownWhenItIsNoProcessOfThisMachine) {
    for (const std::string text : {"", "-", "1", "1-", "1-2", "1-2-", "1-2-another", "x-2-another", "-1-2-3",
                                   "99999999999999999999-1-2"})
        EXPECT_EQ(lifeOf(text), Life::unknown) << text;
}

} // namespace files

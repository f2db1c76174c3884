#include "appkit/stores/gnustep/StoredLists.h"

#include "FileContents.h"
#include "FullDisk.h"
#include "Processes.h"
#include "TemporaryFolder.h"
#include "propertylists/PropertyList.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace qbsp::appkit {

namespace fs = std::filesystem;

using namespace std::chrono_literals;
using platform::Array;
using platform::Date;
using platform::Dictionary;
using platform::Value;

namespace {

const std::string keptInMemory = "; what was set is kept in memory, and saved as soon as that is possible";
const std::string leftAsItIs = "; nothing of it is used, and it is left as it is";

/// No descriptor is to be had, as long as this lives.
class NoDescriptors {
public:
    NoDescriptors() {
        getrlimit(RLIMIT_NOFILE, &before_);
        const rlimit none{0, before_.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
    }

    ~NoDescriptors() { setrlimit(RLIMIT_NOFILE, &before_); }

    NoDescriptors(const NoDescriptors&) = delete;
    NoDescriptors& operator=(const NoDescriptors&) = delete;

private:
    rlimit before_{};
};

class StoredListsTest : public testing::Test {
protected:
    const TemporaryFolder temporary;
    const fs::path folder = temporary.path() / "Defaults";
    std::vector<std::string> log;
    files::Patience patience{0ms};
    StoredLists lists{folder, [this](const std::string& line) {
                          log.push_back(line);
                      }};
    const fs::path file = lists.fileOfDomain("org.example.Sorter");

    StoredListsTest() { fs::create_directory(folder); }

    void put(const std::string& bytes) const { std::ofstream(file, std::ios::binary) << bytes; }

    void put(const Dictionary& contents) const { put(propertylists::propertyListBytes(contents)); }

    [[nodiscard]] Value stored() const {
        const auto parsed = propertylists::parsedPropertyList(bytesOf(file));
        const auto* value = std::get_if<Value>(&parsed);
        return value == nullptr ? Value() : *value;
    }

    [[nodiscard]] std::string inLog(const std::string& text) const {
        return "ERROR: " + file.string() + ": " + text;
    }
};

} // namespace

TEST_F(StoredListsTest, AreSeenAsSetBeforeTheyAreSaved) {
    put({{"theirs", 1}, {"gone", 2}});

    lists.set(file, "ours", true);
    lists.set(file, "gone", {});

    EXPECT_EQ(lists.contents(file), (Dictionary{{"ours", true}, {"theirs", 1}}));
    EXPECT_EQ(stored(), Value(Dictionary{{"theirs", 1}, {"gone", 2}}));
    EXPECT_TRUE(lists.save(patience));
    EXPECT_EQ(stored(), Value(Dictionary{{"ours", true}, {"theirs", 1}}));
}

TEST_F(StoredListsTest, AreMergedIntoWhatTheFileHoldsByThen) {
    lists.set(file, "ours", true);
    put({{"theirs", std::uint64_t{1} << 63U},
         {"real", 0.30000000000000004},
         {"emoji", "\xF0\x9F\x98\x80"},
         {"day", Date{0.5}}});

    EXPECT_TRUE(lists.save(patience));

    EXPECT_EQ(stored(), Value(Dictionary{{"ours", true},
                                         {"theirs", std::uint64_t{1} << 63U},
                                         {"real", 0.30000000000000004},
                                         {"emoji", "\xF0\x9F\x98\x80"},
                                         {"day", Date{0.5}}}));
}

TEST_F(StoredListsTest, AreNotWrittenWhenNothingChanges) {
    put("{ a = <*BY>; }");
    lists.set(file, "a", true);

    EXPECT_TRUE(lists.save(patience));

    EXPECT_EQ(bytesOf(file), "{ a = <*BY>; }");
}

TEST_F(StoredListsTest, HaveTheirFileRemovedWithItsLastKey) {
    put({{"a", true}});
    lists.set(file, "a", {});

    EXPECT_TRUE(lists.save(patience));

    EXPECT_FALSE(fs::exists(file));
}

TEST_F(StoredListsTest, MayReplaceAllThatAFileHoldsAndBeEmptyThen) {
    put({{"a", true}});

    lists.replace(file, {});

    EXPECT_TRUE(lists.save(patience));
    EXPECT_EQ(stored(), Value(Dictionary{}));
}

TEST_F(StoredListsTest, WaitWhileTheDiskIsFullAndAreSavedAfterAll) {
    put({{"theirs", 1}});
    lists.set(file, "ours", true);
    {
        const FullDisk disk;
        EXPECT_FALSE(lists.save(patience));
        EXPECT_FALSE(lists.save(patience));
    }
    EXPECT_TRUE(lists.waits(file));
    EXPECT_EQ(stored(), Value(Dictionary{{"theirs", 1}}));

    EXPECT_TRUE(lists.save(patience));

    EXPECT_EQ(stored(), Value(Dictionary{{"ours", true}, {"theirs", 1}}));
    EXPECT_EQ(log, (std::vector{inLog("could not be written: File too large" + keptInMemory),
                                file.string() + ": what was set was saved after all"}));
}

TEST_F(StoredListsTest, AreLeftAloneWhenTheyCannotBeReadForAPassingReason) {
    put({{"theirs", 1}});
    lists.set(file, "ours", true);
    {
        const NoDescriptors none;
        EXPECT_FALSE(lists.save(patience));
    }
    EXPECT_EQ(stored(), Value(Dictionary{{"theirs", 1}}));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 2)
        << "the file and .lck";

    EXPECT_TRUE(lists.save(patience));
    EXPECT_EQ(stored(), Value(Dictionary{{"ours", true}, {"theirs", 1}}));
}

TEST_F(StoredListsTest, AreLeftAloneWhenTheyMayNotBeRead) {
    put({{"theirs", 1}});
    fs::permissions(temporary.path(), fs::perms(0755));
    fs::permissions(folder, fs::perms(0777));
    fs::permissions(file, fs::perms::none);

    const std::string told = asAnotherUser([&] {
        lists.set(file, "ours", true);
        std::ignore = lists.contents(file);
        std::ignore = lists.save(patience);
        return log.at(0) + "\n" + log.at(1);
    });

    fs::permissions(file, fs::perms(0600));
    EXPECT_EQ(stored(), Value(Dictionary{{"theirs", 1}}));
    EXPECT_EQ(told, inLog("could not be read: Permission denied" + leftAsItIs) + "\n" +
                        inLog("could not be read: Permission denied" + keptInMemory));
}

TEST_F(StoredListsTest, AreSetAsideUnderTheirOwnNamesWhenTheyAreDamaged) {
    for (const std::string name : {".unreadable", ".unreadable-2", ".unreadable-3"}) {
        put("damaged" + name);
        lists.set(file, "ours", name);

        EXPECT_TRUE(lists.save(patience));

        EXPECT_EQ(bytesOf(file.string() + name), "damaged" + name);
        EXPECT_EQ(stored(), Value(Dictionary{{"ours", name}}));
    }
    EXPECT_EQ(log.at(1),
              inLog("is not a property list; it was kept as org.example.Sorter.plist.unreadable-2"));
}

TEST_F(StoredListsTest, AreSetAsideForTheReasonThatHolds) {
    const std::pair<std::string, std::string> rows[] = {
        {"<?xml version=\"1.0\"?><plist><dict/><dict/></plist>", "has more than one root"},
        {std::string(10'000, '('), "is nested too deeply"},
        {"( a )", "holds no dictionary"},
        {std::string((32U << 20U) + 1, ' '), "is larger than the limit of 32 MB"}};
    for (const auto& [bytes, reason] : rows) {
        put(bytes);
        log.clear();
        EXPECT_EQ(lists.contents(file), Dictionary());
        EXPECT_EQ(lists.contents(file), Dictionary());
        EXPECT_EQ(log, std::vector{inLog(reason + leftAsItIs)});
        EXPECT_EQ(bytesOf(file), bytes);

        lists.set(file, "ours", true);
        EXPECT_TRUE(lists.save(patience));
        EXPECT_TRUE(log.at(1).starts_with(inLog(reason + "; it was kept as "))) << log.at(1);
    }
}

TEST_F(StoredListsTest, AreNotSetAsideWhenNothingCouldBeWrittenInTheirPlace) {
    put("damaged");
    lists.set(file, "ours", true);
    const FullDisk disk;

    EXPECT_FALSE(lists.save(patience));

    EXPECT_EQ(bytesOf(file), "damaged");
    EXPECT_FALSE(fs::exists(file.string() + ".unreadable"));
}

TEST_F(StoredListsTest, AreSavedWhereALinkLeadsAndDamagedOnesAreSetAsideThere) {
    const fs::path target = temporary.path() / "target.plist";
    std::ofstream(target) << "damaged";
    fs::create_symlink(target, file);
    lists.set(file, "ours", true);

    EXPECT_TRUE(lists.save(patience));

    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(stored(), Value(Dictionary{{"ours", true}}));
    EXPECT_EQ(bytesOf(target.string() + ".unreadable"), "damaged");
}

TEST_F(StoredListsTest, AreRefusedWhenTheyWouldNotReadBack) {
    Value deep = Array{};
    for (int level = 0; level < 600; ++level)
        deep = Array{deep};
    lists.set(file, "deep", deep);

    EXPECT_FALSE(lists.save(patience));

    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(log,
              std::vector{inLog("could not be written: what is to be saved has no form as a property list" +
                                keptInMemory)});
}

TEST_F(StoredListsTest, WaitForALockThatAnotherProcessHas) {
    lists.set(file, "ours", true);
    const auto place = files::DefaultsLock::placeIn(folder);
    {
        files::Patience none{0ms};
        const files::DefaultsLock lock(folder, none);
        EXPECT_FALSE(lists.save(patience));
    }
    EXPECT_EQ(
        log, std::vector{inLog("its lock " + place.string() + " is held by another process" + keptInMemory)});

    EXPECT_TRUE(lists.save(patience));
}

TEST_F(StoredListsTest, SayWhenTheyRemovedALockThatWasLeftBehind) {
    const auto place = files::DefaultsLock::placeIn(folder);
    fs::create_directories(place);
    fs::last_write_time(place, fs::file_time_type::clock::now() - 1h);
    lists.set(file, "ours", true);

    EXPECT_TRUE(lists.save(patience));

    EXPECT_EQ(log, std::vector{"The lock " + place.string() +
                               " was left behind by another process, and was removed"});
}

TEST_F(StoredListsTest, AreForgottenWhereTheyWereToBeSavedAtOnceOrNotAtAll) {
    lists.set(file, "ours", true);
    {
        const FullDisk disk;
        EXPECT_FALSE(lists.saveOrForget(file, patience));
    }

    EXPECT_FALSE(lists.waits());
    EXPECT_EQ(lists.contents(file), Dictionary());
    EXPECT_EQ(log, std::vector{inLog("could not be written: File too large; what was to be saved is not")});

    lists.set(file, "ours", true);
    EXPECT_TRUE(lists.saveOrForget(file, patience));
    EXPECT_EQ(log.size(), 1U);
}

TEST_F(StoredListsTest, AreLoggedAsLostWhenTheLastTryFails) {
    lists.set(file, "ours", true);
    const FullDisk disk;

    lists.saveAtEnd(patience);

    EXPECT_EQ(log,
              std::vector{inLog("could not be written: File too large; what was set is lost, because the "
                                "application quits")});
}

TEST_F(StoredListsTest, AreLoggedAsLostWhenASaveFailsAfterTheLastTry) {
    lists.saveAtEnd(patience);
    lists.set(file, "ours", true);
    const FullDisk disk;

    EXPECT_FALSE(lists.save(patience));

    EXPECT_EQ(log,
              std::vector{inLog("could not be written: File too large; what was set is lost, because the "
                                "application quits")});
}

TEST_F(StoredListsTest, AreSavedAtTheEndAlsoUnderALockThatIsNotGivenBack) {
    files::Patience none{0ms};
    const files::DefaultsLock lock(folder, none);
    lists.set(file, "ours", true);

    lists.saveAtEnd(patience);

    EXPECT_EQ(stored(), Value(Dictionary{{"ours", true}}));
    EXPECT_TRUE(log.empty());
}

TEST_F(StoredListsTest, AreAnnouncedOnceWhenTheyWereSavedAfterAll) {
    std::vector<std::string> calls;
    lists.onceSaved("early", [&] { calls.emplace_back("while nothing waits"); });
    lists.set(file, "ours", true);
    {
        const FullDisk disk;
        EXPECT_FALSE(lists.save(patience));
        lists.onceSaved("notice", [&] { calls.emplace_back("first"); });
        lists.onceSaved("notice", [&] { calls.emplace_back("second"); });
    }
    EXPECT_TRUE(calls.empty());

    EXPECT_TRUE(lists.save(patience));
    EXPECT_TRUE(lists.save(patience));

    EXPECT_EQ(calls, std::vector<std::string>{"second"});
}

TEST_F(StoredListsTest, OfOthersAreReadUpToASmallerSizeAndOnlyWhenTheyAreDictionaries) {
    put("{ a = b; }");
    EXPECT_EQ(lists.read(file), (Dictionary{{"a", "b"}}));
    EXPECT_EQ(lists.read(folder / "none"), std::nullopt);

    put(std::string((8U << 20U) + 1, ' '));
    EXPECT_EQ(lists.read(file), std::nullopt);
    EXPECT_EQ(log, std::vector{inLog("is larger than the limit of 8 MB" + leftAsItIs)});
}

TEST_F(StoredListsTest, HoldEveryKeyOfProcessesThatWriteAtOnce) {
    constexpr int processes = 3;
    constexpr int keys = 20;

    runAtOnce(processes, [&] {
        files::Patience much{60s};
        for (int key = 0; key < keys; ++key) {
            lists.set(file, std::to_string(getpid()) + "." + std::to_string(key), key);
            EXPECT_TRUE(lists.save(much));
        }
    });

    EXPECT_EQ(lists.contents(file).size(), std::size_t{processes * keys});
}

TEST_F(StoredListsTest, AreWholeAndCanBeSavedAtOnceWhereverAProcessIsKilled) {
    put({{"theirs", "kept"}});
    std::minstd_rand random(20260101);
    for (int round = 0; round < 30; ++round) {
        const pid_t child = fork();
        if (child == 0) {
            files::Patience much{60s};
            for (int number = 0;; ++number) {
                lists.set(file, "number", number);
                lists.save(much);
            }
        }
        usleep(static_cast<useconds_t>(random() % 5000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);

        lists.set(file, "round", round);
        EXPECT_TRUE(lists.save(patience)) << log.back();
        EXPECT_EQ(lists.contents(file).at("theirs"), Value("kept"));
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 2)
        << "the file and .lck";
}

TEST_F(StoredListsTest, OfTenThousandEntriesAreReadAndSavedQuickly) {
    Dictionary flags;
    for (int number = 0; number < 10'000; ++number)
        flags["Application " + std::to_string(number)] = number % 2 == 0;
    lists.set(file, "flags", flags);

    EXPECT_TRUE(lists.save(patience));

    EXPECT_EQ(lists.contents(file).at("flags"), Value(flags));
}

} // namespace qbsp::appkit

#include "FileContents.h"
#include "TemporaryFolder.h"
#include "UnreadableLists.h"
#include "appkit/stores/gnustep/StoredLists.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace qbsp::appkit {

namespace fs = std::filesystem;

using platform::Dictionary;

namespace {

/// The contents of files that hold no dictionary, though they hold something.
std::vector<propertylists::Unreadable> hostileContents() {
    auto contents = propertylists::unreadableLists();
    std::erase_if(contents, [](const auto& each) { return each.bytes.empty(); });
    contents.push_back({"an array", "( a )"});
    contents.push_back({"an array in XML", "<?xml version=\"1.0\"?><plist><array/></plist>"});
    contents.push_back({"a date in XML", "<plist><date>2001-01-01T00:00:00Z</date></plist>"});
    contents.push_back({"data", "<00>"});
    return contents;
}

class HostileFile : public testing::Test {
protected:
    void put(const std::string& bytes) const { std::ofstream(file, std::ios::binary) << bytes; }

    /// Expects that nothing of the file is used, nor anything written in its place.
    void expectToStayUnread(const char* what) {
        SCOPED_TRACE(what);
        StoredLists lists = fresh();
        EXPECT_EQ(lists.contents(file), Dictionary());
        lists.set(file, "ours", true);
        EXPECT_FALSE(lists.save(patience));
        EXPECT_EQ(log.size(), 2U) << "one line says that it was not read, one that nothing was saved";
    }

    /// Stores that have logged nothing yet.
    [[nodiscard]] StoredLists fresh() {
        log.clear();
        return StoredLists(folder.path(), [this](const std::string& line) { log.push_back(line); });
    }

    const TemporaryFolder folder;
    const fs::path file = folder.path() / "org.example.Sorter.plist";
    std::vector<std::string> log;
    files::Patience patience{files::Patience::Duration(0)};
};

} // namespace

TEST_F(HostileFile, OfADomainIsLeftAloneUntilSomethingIsSavedAndIsThenKept) {
    for (const auto& [name, bytes, fault] : hostileContents()) {
        SCOPED_TRACE(name);
        StoredLists lists = fresh();
        put(bytes);

        EXPECT_EQ(lists.contents(file), Dictionary());
        EXPECT_EQ(bytesOf(file), bytes);
        lists.set(file, "ours", true);
        EXPECT_TRUE(lists.save(patience));

        EXPECT_EQ(lists.contents(file), (Dictionary{{"ours", true}}));
        EXPECT_EQ(bytesOf(file.string() + ".unreadable"), bytes);
        EXPECT_EQ(log.size(), 2U) << "one line says that it was not read, one where it is kept";
        fs::remove(file.string() + ".unreadable");
    }
}

TEST_F(HostileFile, OfAnotherProgramGivesNothing) {
    for (const auto& [name, bytes, fault] : hostileContents()) {
        SCOPED_TRACE(name);
        StoredLists lists = fresh();
        put(bytes);

        EXPECT_EQ(lists.read(file), std::nullopt);

        EXPECT_EQ(bytesOf(file), bytes);
        EXPECT_EQ(log.size(), 1U);
    }
}

TEST_F(HostileFile, ThatIsNoFileIsNeitherReadNorReplaced) {
    fs::create_directory(file);
    expectToStayUnread("a folder");
    EXPECT_TRUE(fs::is_directory(file));
    fs::remove(file);

    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    expectToStayUnread("a pipe");
    EXPECT_TRUE(fs::is_fifo(file));
    fs::remove(file);

    fs::create_symlink(file, file);
    expectToStayUnread("a link to itself");
    fs::remove(file);

    fs::create_symlink("/dev/zero", file);
    expectToStayUnread("a device without an end");
    fs::remove(file);

    fs::create_symlink("/proc/self/mem", file);
    expectToStayUnread("the memory of the process");
}

TEST_F(HostileFile, OfSixtyMegabytesIsRefusedUnread) {
    put("{ a = b; }");
    fs::resize_file(file, std::uintmax_t{60} << 20U);
    StoredLists lists = fresh();

    EXPECT_EQ(lists.read(file), std::nullopt);
    EXPECT_EQ(lists.contents(file), Dictionary());

    ASSERT_EQ(log.size(), 2U);
    EXPECT_NE(log[0].find("is larger than the limit of 8 MB"), std::string::npos) << log[0];
    EXPECT_NE(log[1].find("is larger than the limit of 32 MB"), std::string::npos) << log[1];
}

} // namespace qbsp::appkit

#include "simulated/Disk.h"

#include <gtest/gtest.h>

namespace qbsp::simulated {

TEST(Disk, IsEmptyAtFirst) {
    const Disk disk;

    EXPECT_FALSE(disk.exists("/"));
    EXPECT_EQ(disk.propertyList("/a"), std::nullopt);
}

TEST(Disk, HasTheFoldersAboveWhatLiesOnIt) {
    Disk disk;

    disk.putFile("/a/b/file");

    EXPECT_TRUE(disk.exists("/a/b/file"));
    EXPECT_TRUE(disk.exists("/a/b"));
    EXPECT_TRUE(disk.exists("/a/"));
    EXPECT_TRUE(disk.exists("/"));
    EXPECT_FALSE(disk.exists("/a/b/fil"));
    EXPECT_FALSE(disk.exists("/a/b/file/below"));
}

TEST(Disk, ReadsPropertyListsAndNoOtherFiles) {
    Disk disk;
    disk.putPropertyList("/list", {{"a", 1}});
    disk.putFile("/file");
    disk.makeFolder("/folder");

    EXPECT_EQ(disk.propertyList("/list"), (platform::Dictionary{{"a", 1}}));
    EXPECT_EQ(disk.propertyList("/list/"), (platform::Dictionary{{"a", 1}}));
    EXPECT_EQ(disk.propertyList("/file"), std::nullopt);
    EXPECT_EQ(disk.propertyList("/folder"), std::nullopt);
    EXPECT_EQ(disk.propertyLists().size(), 1U);
}

TEST(Disk, KeepsAFileWhereAFolderIsMade) {
    Disk disk;
    disk.putPropertyList("/list", {{"a", 1}});

    disk.makeFolder("/list");

    EXPECT_TRUE(disk.propertyList("/list").has_value());
}

TEST(Disk, RemovesAPathAndWhatIsBelowIt) {
    Disk disk;
    disk.putFile("/a/b/one");
    disk.putFile("/a/bb");

    disk.remove("/a/b");

    EXPECT_FALSE(disk.exists("/a/b"));
    EXPECT_TRUE(disk.exists("/a/bb"));
}

TEST(Disk, LosesAFolderWithTheLastThatLiesBelowIt) {
    Disk disk;
    disk.makeFolder("/a");
    disk.putFile("/a/one");
    disk.putFile("/a/two");

    disk.remove("/a/one");
    EXPECT_TRUE(disk.exists("/a"));
    disk.remove("/a/two");
    EXPECT_FALSE(disk.exists("/a"));
}

TEST(Disk, IsEmptyAfterTheRootWasRemoved) {
    Disk disk;
    disk.putFile("/a/one");

    disk.remove("/");

    EXPECT_FALSE(disk.exists("/a"));
}

} // namespace qbsp::simulated

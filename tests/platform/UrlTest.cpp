#include "platform/URL.h"

#include <gtest/gtest.h>

namespace qbsp::platform {

TEST(PathComponents, AreAppendedWithExactlyOneSlash) {
    EXPECT_EQ(appendingPathComponent("/a", "b"), "/a/b");
    EXPECT_EQ(appendingPathComponent("/a/", "b"), "/a/b");
    EXPECT_EQ(appendingPathComponent("/", "b"), "/b");
    EXPECT_EQ(appendingPathComponent("", "b"), "b");
}

TEST(PathComponents, CanLoseTheLast) {
    EXPECT_EQ(deletingLastPathComponent("/a/b"), "/a");
    EXPECT_EQ(deletingLastPathComponent("/a/b/"), "/a");
    EXPECT_EQ(deletingLastPathComponent("/a"), "/");
    EXPECT_EQ(deletingLastPathComponent("/"), "/");
    EXPECT_EQ(deletingLastPathComponent("//"), "/");
    EXPECT_EQ(deletingLastPathComponent("a"), "");
    EXPECT_EQ(deletingLastPathComponent(""), "");
}

TEST(PathComponents, EndWithTheLastWhateverSlashesFollow) {
    EXPECT_EQ(lastPathComponent("/a/b"), "b");
    EXPECT_EQ(lastPathComponent("/a/b//"), "b");
    EXPECT_EQ(lastPathComponent("b"), "b");
    EXPECT_EQ(lastPathComponent("/"), "/");
    EXPECT_EQ(lastPathComponent("//"), "/");
    EXPECT_EQ(lastPathComponent(""), "");
}

TEST(PathExtension, IsAppendedAfterADot) {
    EXPECT_EQ(appendingPathExtension("/a/Quarrybook Sorter", "app"), "/a/Quarrybook Sorter.app");
}

TEST(PathExtension, IsDeletedFromTheLastComponentOnly) {
    EXPECT_EQ(deletingPathExtension("Foo.app"), "Foo");
    EXPECT_EQ(deletingPathExtension("Foo.app/"), "Foo");
    EXPECT_EQ(deletingPathExtension("F.app"), "F");
    EXPECT_EQ(deletingPathExtension("/folder/F.app"), "/folder/F");
    EXPECT_EQ(deletingPathExtension("Foo..app"), "Foo.");
    EXPECT_EQ(deletingPathExtension("/folder.d/Foo"), "/folder.d/Foo");
    EXPECT_EQ(deletingPathExtension("Foo"), "Foo");
}

TEST(PathExtension, DoesNotBeginWithTheNamesFirstDot) {
    EXPECT_EQ(deletingPathExtension(".app"), ".app");
    EXPECT_EQ(deletingPathExtension("/folder/.app"), "/folder/.app");
}

TEST(FileUrl, IsKnownByItsPath) {
    const URL folder = URL::fileURLWithPath("/Applications");

    EXPECT_EQ(folder.appendingPathComponent("Mail.app").path(), "/Applications/Mail.app");
    EXPECT_EQ(folder, URL::fileURLWithPath("/Applications"));
    EXPECT_NE(folder, URL::fileURLWithPath("/"));
}

} // namespace qbsp::platform

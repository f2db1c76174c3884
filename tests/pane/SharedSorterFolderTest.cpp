#include "pane/SharedSorterFolder.h"

#include "PaneTest.h"

namespace qbsp {

class SharedFolder : public PaneTest {
protected:
    std::optional<platform::URL> folder() { return sharedSorterFolder(platform.files, platform.log); }
};

TEST_F(SharedFolder, IsNoneWithoutAContainerAndNothingIsLogged) {
    world.container = std::nullopt;

    EXPECT_EQ(folder(), std::nullopt);

    EXPECT_EQ(transcript(), R"(
NSFileManager containerURLForSecurityApplicationGroupIdentifier:("Z3K8WQ4N7P.quarry2") -> null
)");
}

TEST_F(SharedFolder, IsTheOneThatIsThere) {
    world.disk.makeFolder("/Group/Sorter");

    EXPECT_EQ(folder()->path(), "/Group/Sorter");

    EXPECT_EQ(transcript(), R"(
NSFileManager containerURLForSecurityApplicationGroupIdentifier:("Z3K8WQ4N7P.quarry2") -> "/Group"
NSFileManager fileExistsAtPath:("/Group/Sorter") -> true
)");
}

TEST_F(SharedFolder, IsReturnedEvenWhereAPlainFileLies) {
    world.disk.putFile("/Group/Sorter");

    EXPECT_EQ(folder()->path(), "/Group/Sorter");

    EXPECT_EQ(transcript(), R"(
NSFileManager containerURLForSecurityApplicationGroupIdentifier:("Z3K8WQ4N7P.quarry2") -> "/Group"
NSFileManager fileExistsAtPath:("/Group/Sorter") -> true
)");
}

TEST_F(SharedFolder, IsMadeWithAllFoldersAboveIt) {
    EXPECT_EQ(folder()->path(), "/Group/Sorter");

    EXPECT_EQ(transcript(), R"(
NSFileManager containerURLForSecurityApplicationGroupIdentifier:("Z3K8WQ4N7P.quarry2") -> "/Group"
NSFileManager fileExistsAtPath:("/Group/Sorter") -> false
NSFileManager createDirectoryAtURL:withIntermediateDirectories:attributes:error:("/Group/Sorter", true, null) -> null
)");
}

TEST_F(SharedFolder, IsReturnedEvenWhenItCouldNotBeMade) {
    world.folderError = "No space.";

    EXPECT_EQ(folder()->path(), "/Group/Sorter");

    EXPECT_EQ(transcript(), R"(
NSFileManager containerURLForSecurityApplicationGroupIdentifier:("Z3K8WQ4N7P.quarry2") -> "/Group"
NSFileManager fileExistsAtPath:("/Group/Sorter") -> false
NSFileManager createDirectoryAtURL:withIntermediateDirectories:attributes:error:("/Group/Sorter", true, null) -> "No space."
NSLog("ERROR: No space.")
)");
}

} // namespace qbsp

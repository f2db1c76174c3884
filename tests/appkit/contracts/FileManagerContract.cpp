#include "Contract.h"
#include "stages/FilesStage.h"

namespace qbsp::contracts {

using platform::IntermediateDirectories;
using platform::URL;

namespace {

constexpr platform::ApplicationGroup group{"org.example.group"};

class FileManagerContract : public Contract<FilesStage> {
protected:
    [[nodiscard]] std::string below(const std::string& path) const { return stage->folder() + "/" + path; }

    [[nodiscard]] std::optional<std::string>
    makeFolder(const std::string& path, IntermediateDirectories others = IntermediateDirectories::create) {
        return files.createDirectoryAtURL(URL::fileURLWithPath(path), others);
    }

    platform::FileManager& files = stage->files();
};

} // namespace

TEST_P(FileManagerContract, TheGroupsContainerIsAFolderThatCanBeMade) {
    const auto container = files.containerURLForSecurityApplicationGroupIdentifier(group);

    ASSERT_TRUE(container);
    EXPECT_TRUE(container->path().starts_with('/'));
    EXPECT_EQ(files.containerURLForSecurityApplicationGroupIdentifier(group), container);
    EXPECT_EQ(makeFolder(container->appendingPathComponent("Shared").path()), std::nullopt);
    EXPECT_TRUE(files.fileExistsAtPath(container->path() + "/Shared"));
}

TEST_P(FileManagerContract, FilesAndFoldersExistAndNothingElseDoes) {
    stage->putOtherFile(below("a file, größer"));

    EXPECT_TRUE(files.fileExistsAtPath(stage->folder()));
    EXPECT_TRUE(files.fileExistsAtPath(below("a file, größer")));
    EXPECT_FALSE(files.fileExistsAtPath(below("a file")));
    EXPECT_FALSE(files.fileExistsAtPath(below("A FILE, GRÖSSER")));
}

TEST_P(FileManagerContract, AFolderIsMadeInOneThatExists) {
    EXPECT_EQ(makeFolder(below("made here"), IntermediateDirectories::mustExist), std::nullopt);

    EXPECT_TRUE(files.fileExistsAtPath(below("made here")));
}

TEST_P(FileManagerContract, TheFoldersThatLeadToANewOneAreMadeToo) {
    EXPECT_EQ(makeFolder(below("a/b/c")), std::nullopt);

    EXPECT_TRUE(files.fileExistsAtPath(below("a/b")));
    EXPECT_TRUE(files.fileExistsAtPath(below("a/b/c")));
}

TEST_P(FileManagerContract, AFolderThatExistsIsMadeWithSuccess) {
    EXPECT_EQ(makeFolder(stage->folder()), std::nullopt);
}

TEST_P(FileManagerContract, AFolderThatCannotBeMadeIsDescribedAsAnErrorAndNotMade) {
    stage->block();

    const auto error = makeFolder(below("made here"));

    EXPECT_FALSE(error.value_or("").empty());
    EXPECT_FALSE(files.fileExistsAtPath(below("made here")));
}

INSTANTIATE_TEST_SUITE_P(On, FileManagerContract, onBothSides<FilesStage>(), nameOfSide);

namespace {

class FileManagerRefusalContract : public FileManagerContract {};

} // namespace

TEST_P(FileManagerRefusalContract, AFolderIsNotMadeInTheFoldersThatMustExistAndDoNot) {
    EXPECT_TRUE(makeFolder(below("a/b"), IntermediateDirectories::mustExist));

    EXPECT_FALSE(files.fileExistsAtPath(below("a")));
}

TEST_P(FileManagerRefusalContract, AFolderBelowAFileIsDescribedAsAnError) {
    stage->putOtherFile(below("a file"));

    EXPECT_TRUE(makeFolder(below("a file/a folder")));
}

// The simulated disk makes every folder, unless the program that drives it forbids that.
INSTANTIATE_TEST_SUITE_P(On, FileManagerRefusalContract, onAppKit<FilesStage>(), nameOfSide);

} // namespace qbsp::contracts

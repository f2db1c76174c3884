#include "applications/Bundle.h"

#include "TemporaryFolder.h"
#include "UnreadableLists.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <sys/stat.h>

namespace applications {

namespace fs = std::filesystem;

namespace {

/// A bundle in a folder of its own, which is empty at first.
class BundleTest : public testing::Test {
protected:
    BundleTest() { fs::create_directories(bundle / "Resources"); }

    void put(const std::string& text, const fs::path& place = "Resources/Info-gnustep.plist") const {
        std::ofstream(bundle / place) << text;
    }

    /// The bundle when the text describes it.
    [[nodiscard]] Bundle bundleFrom(const std::string& text) const {
        put(text);
        return read();
    }

    [[nodiscard]] Bundle read() const { return bundleAt(bundle).value(); }

    TemporaryFolder folder;
    const fs::path bundle = folder.path() / "Quarry.app";
    const fs::path description = bundle / "Resources" / "Info-gnustep.plist";
    const std::string described = R"({ CFBundleIdentifier = "org.example.Quarry"; NSExecutable = Quarry; })";
    const Bundle whole{"org.example.Quarry", bundle / "Quarry"};
};

} // namespace

TEST_F(BundleTest, IsDescribedByTheFirstFileThatIsThere) {
    int number = 0;
    for (const char* place :
         {"Info.plist", "Resources/Info.plist", "Info-gnustep.plist", "Resources/Info-gnustep.plist"}) {
        const std::string name = "org.example.Number" + std::to_string(++number);
        put("{ CFBundleIdentifier = \"" + name + "\"; }", place);
        EXPECT_EQ(read().identifier, name) << place;
    }
}

TEST_F(BundleTest, IsNotDescribedByALaterFileWhenTheFirstIsDamaged) {
    put(described, "Resources/Info.plist");
    EXPECT_EQ(bundleFrom("{ CFBundleIdentifier = "), Bundle());
}

TEST_F(BundleTest, HasTheExecutableOfEitherName) {
    EXPECT_EQ(bundleFrom("{ CFBundleExecutable = Quarry; }").executable, bundle / "Quarry");
    EXPECT_EQ(bundleFrom("{ NSExecutable = Quarry; CFBundleExecutable = Other; }").executable,
              bundle / "Quarry");
    EXPECT_EQ(bundleFrom("{ NSExecutable = \"\"; CFBundleExecutable = Quarry; }").executable,
              bundle / "Quarry");
    EXPECT_EQ(bundleFrom("{ NSExecutable = \"Programs/Quarry\"; }").executable, bundle / "Programs/Quarry");
}

TEST_F(BundleTest, IsReadInEachFormat) {
    EXPECT_EQ(bundleFrom(described), whole);
    EXPECT_EQ(bundleFrom("<?xml version=\"1.0\"?><plist><dict><key>CFBundleIdentifier</key>"
                         "<string>org.example.Quarry</string><key>NSExecutable</key><string>Quarry</string>"
                         "</dict></plist>"),
              whole);
}

TEST_F(BundleTest, IsThereThoughNothingDescribesIt) {
    EXPECT_EQ(read(), Bundle());
}

TEST_F(BundleTest, IsNotThereWithoutAFolder) {
    std::ofstream(folder.path() / "File.app") << described;
    fs::create_symlink("Loop.app", folder.path() / "Loop.app");
    fs::create_symlink("Nowhere", folder.path() / "Dangling.app");
    ASSERT_EQ(mkfifo((folder.path() / "Pipe.app").c_str(), 0600), 0);

    for (const char* name : {"Nothing.app", "File.app", "Loop.app", "Dangling.app", "Pipe.app", "File.app/"})
        EXPECT_EQ(bundleAt(folder.path() / name), std::nullopt) << name;
    EXPECT_EQ(bundleAt(""), std::nullopt);
    EXPECT_EQ(bundleAt(folder.path() / std::string(5000, 'x')), std::nullopt);
}

TEST_F(BundleTest, SharesAnIdentifierWithAnotherAndKeepsItsOwnExecutable) {
    put(described);
    const fs::path copy = folder.path() / "Copy.app";
    fs::create_directories(copy);
    std::ofstream(copy / "Info.plist") << described;

    EXPECT_EQ(read(), whole);
    EXPECT_EQ(bundleAt(copy), (Bundle{whole.identifier, copy / "Quarry"}));
}

TEST_F(BundleTest, HasNoExecutableOutsideItself) {
    for (const char* name : {"../Quarry", "Programs/../../Quarry", "..", "/bin/sh", "//bin/sh", "/"})
        EXPECT_EQ(bundleFrom("{ NSExecutable = \"" + std::string(name) + "\"; }").executable, "") << name;
}

TEST_F(BundleTest, HasNothingThatIsOfAnotherKindThanText) {
    for (const char* value : {"( Quarry )", "{ Quarry = Quarry; }", "<2f62696e>", "\"\"", "<*I7>", "<*BY>"}) {
        const std::string text = value;
        EXPECT_EQ(bundleFrom("{ CFBundleIdentifier = " + text + "; NSExecutable = " + text + "; }"), Bundle())
            << value;
    }
}

TEST_F(BundleTest, IsNotDescribedByWhatHoldsNoDictionary) {
    for (const char* text :
         {"", "( CFBundleIdentifier )", "\"CFBundleIdentifier\"", "<plist><array/></plist>", "bplist00",
          "<plist><dict><key>CFBundleIdentifier</key></dict></plist>", "\xff\xfe\x00", "{", "}{"})
        EXPECT_EQ(bundleFrom(text), Bundle()) << text;
}

TEST_F(BundleTest, IsNotDescribedByAnyKindOfUnreadableList) {
    for (const auto& [name, bytes, fault] : qbsp::propertylists::unreadableLists())
        EXPECT_EQ(bundleFrom(bytes), Bundle()) << name;
}

TEST_F(BundleTest, IsNotDescribedByWhatIsNestedTooDeeply) {
    const std::size_t depth = 200'000;
    std::string elements;
    for (std::size_t level = 0; level < depth; ++level)
        elements += "<array>";
    EXPECT_EQ(bundleFrom("{ CFBundleIdentifier = " + std::string(depth, '(') + ";"), Bundle());
    EXPECT_EQ(bundleFrom(std::string(depth, '{')), Bundle());
    EXPECT_EQ(bundleFrom("<plist><dict><key>CFBundleIdentifier</key>" + elements.substr(0, 1'000'000)),
              Bundle());
}

TEST_F(BundleTest, IsNotDescribedByWhatIsLargerThanTheLimit) {
    put(described);
    fs::resize_file(description, std::uintmax_t{60} << 20U);
    EXPECT_EQ(read(), Bundle());

    const std::string blanks(largestDescription - described.size(), ' ');
    EXPECT_EQ(bundleFrom(described + blanks), whole);
    EXPECT_EQ(bundleFrom(described + blanks + " "), Bundle());
}

TEST_F(BundleTest, IsNotDescribedByWhatIsNoFile) {
    fs::create_symlink(description, description);
    EXPECT_EQ(read(), Bundle()) << "a link to itself";

    fs::remove(description);
    ASSERT_EQ(mkfifo(description.c_str(), 0600), 0);
    EXPECT_EQ(read(), Bundle()) << "a pipe";

    fs::remove(description);
    fs::create_directory(description);
    EXPECT_EQ(read(), Bundle()) << "a folder";

    fs::remove(description);
    fs::create_symlink("/dev/zero", description);
    EXPECT_EQ(read(), Bundle()) << "a device without an end";
}

TEST_F(BundleTest, MayLinkToItsDescription) {
    put(described, "Described.plist");
    fs::create_symlink("../Described.plist", description);

    EXPECT_EQ(read(), whole);
}

TEST_F(BundleTest, CanBeStartedOnlyByAFileThatMayBeExecuted) {
    const fs::path file = bundle / "Quarry";
    EXPECT_FALSE(canBeExecuted(file));
    std::ofstream(file) << "#!/bin/sh\n";
    fs::permissions(file, fs::perms::owner_read);
    EXPECT_FALSE(canBeExecuted(file));
    fs::permissions(file, fs::perms::owner_all);
    EXPECT_TRUE(canBeExecuted(file));

    EXPECT_FALSE(canBeExecuted(bundle)) << "a folder";
    fs::create_symlink("Loop", bundle / "Loop");
    EXPECT_FALSE(canBeExecuted(bundle / "Loop"));
    ASSERT_EQ(mkfifo((bundle / "Pipe").c_str(), 0700), 0);
    EXPECT_FALSE(canBeExecuted(bundle / "Pipe"));
    EXPECT_FALSE(canBeExecuted(""));
}

} // namespace applications

#include "hidelist/ApplicationName.h"

#include "simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

namespace qbsp {

class ApplicationName : public testing::Test {
protected:
    void putInfo(const platform::Dictionary& info) {
        platform.world.disk.putPropertyList("/A/File.app/Contents/Info.plist", info);
    }

    std::optional<std::string> name(const char* bundle = "/A/File.app") {
        return applicationName(platform::URL::fileURLWithPath(bundle), platform.files, platform.propertyLists,
                               platform.strings);
    }

    simulated::SimulatedPlatform platform;
};

TEST_F(ApplicationName, IsTheExecutables) {
    putInfo({{"CFBundleExecutable", "Mail"}, {"CFBundleName", "Post"}});

    EXPECT_EQ(name(), "Mail");
}

TEST_F(ApplicationName, IsTheBundlesForTheJavaLauncherInAnyCase) {
    for (const char* const launcher : {"JavaApplicationStub", "javaapplicationstub", "JAVAAPPLICATIONSTUB"}) {
        putInfo({{"CFBundleExecutable", launcher}, {"CFBundleName", "Foo Tool"}});

        EXPECT_EQ(name(), "Foo Tool");
    }
}

TEST_F(ApplicationName, IsTheExecutablesWhenThatOnlyBeginsLikeTheJavaLauncher) {
    putInfo({{"CFBundleExecutable", "JavaApplicationStub2"}, {"CFBundleName", "Foo Tool"}});

    EXPECT_EQ(name(), "JavaApplicationStub2");
}

TEST_F(ApplicationName, IsTheBundlesWithoutAnExecutable) {
    putInfo({{"CFBundleName", "Foo Tool"}});

    EXPECT_EQ(name(), "Foo Tool");
}

TEST_F(ApplicationName, IsNoneWithNeither) {
    putInfo({});
    EXPECT_EQ(name(), std::nullopt);

    putInfo({{"CFBundleExecutable", "JavaApplicationStub"}});
    EXPECT_EQ(name(), std::nullopt);
}

TEST_F(ApplicationName, TakesOnlyTextsForEntries) {
    putInfo({{"CFBundleExecutable", 7}, {"CFBundleName", "Foo Tool"}});
    EXPECT_EQ(name(), "Foo Tool");

    putInfo({{"CFBundleName", platform::Array{"Foo Tool"}}});
    EXPECT_EQ(name(), std::nullopt);
}

TEST_F(ApplicationName, MayBeEmpty) {
    putInfo({{"CFBundleExecutable", ""}, {"CFBundleName", "Foo Tool"}});

    EXPECT_EQ(name(), "");
}

TEST_F(ApplicationName, IsNoneForABundleThatIsThereWithoutAReadablePropertyList) {
    platform.world.disk.putFile("/A/File.app/Contents/Info.plist");

    EXPECT_EQ(name(), std::nullopt);
}

TEST_F(ApplicationName, IsTheFilesOnlyForABundleThatIsNotThere) {
    EXPECT_EQ(name("/A/Gone.app"), "Gone");
    EXPECT_EQ(name("/A/Gone.Tool.app"), "Gone.Tool");
    EXPECT_EQ(name("/A/Gone"), "Gone");
}

TEST_F(ApplicationName, AsksForTheBundleAndNotForItsPropertyList) {
    std::ignore = name("/A/Gone.app");

    EXPECT_EQ(platform.transcript.take(),
              std::vector<std::string>{R"(NSFileManager fileExistsAtPath:("/A/Gone.app") -> false)"});
}

} // namespace qbsp

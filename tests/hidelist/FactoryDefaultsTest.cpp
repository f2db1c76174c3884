#include "hidelist/FactoryDefaults.h"

#include "simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

namespace qbsp {

class FactoryDefaults : public testing::Test {
protected:
    static constexpr const char* file = "/A/Sorter.app/Contents/Resources/FactoryDefaults.plist";

    simulated::SimulatedPlatform platform;
};

TEST_F(FactoryDefaults, LieInTheSortersResources) {
    platform.world.disk.putPropertyList(
        file, {{"UserSpecifiedFullScreenApplications", platform::Dictionary{{"Mail", true}}}, {"Other", 1}});

    EXPECT_EQ(factoryHideFlags("/A/Sorter.app", platform.propertyLists),
              (platform::Dictionary{{"Mail", true}}));
}

TEST_F(FactoryDefaults, AreTakenAsTheyAre) {
    platform.world.disk.putPropertyList(file, {{"UserSpecifiedFullScreenApplications", "no list"}});

    EXPECT_EQ(factoryHideFlags("/A/Sorter.app", platform.propertyLists), "no list");
}

TEST_F(FactoryDefaults, HaveNoListWithoutTheEntry) {
    platform.world.disk.putPropertyList(file, {{"Other", 1}});

    EXPECT_FALSE(factoryHideFlags("/A/Sorter.app", platform.propertyLists).exists());
}

TEST_F(FactoryDefaults, HaveNoListInAFileThatIsNoDictionary) {
    platform.world.disk.putFile(file);

    EXPECT_FALSE(factoryHideFlags("/A/Sorter.app", platform.propertyLists).exists());
}

TEST_F(FactoryDefaults, HaveNoListWithoutAPathButAreAskedFor) {
    EXPECT_FALSE(factoryHideFlags(std::nullopt, platform.propertyLists).exists());

    EXPECT_EQ(platform.transcript.take(),
              std::vector<std::string>{"NSDictionary dictionaryWithContentsOfFile:(null) -> null"});
}

} // namespace qbsp

#include "settings/SorterDomain.h"

#include "Stage.h"

#include <gtest/gtest.h>

namespace qbsp {

class SorterDomainAccess : public testing::Test, protected Stage {
protected:
    SorterDomain domain{platform.preferences, platform::ApplicationID{solo}};
};

TEST_F(SorterDomainAccess, ReadsBetweenAddingAndRemovingTheSuite) {
    storeHideList(solo, platform::Dictionary{{"Mail", true}});

    EXPECT_EQ(domain.hideFlags(), (platform::Dictionary{{"Mail", true}}));

    EXPECT_EQ(transcript(), R"(
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
CFPreferencesCopyAppValue("UserSpecifiedFullScreenApplications", "com.quarrybook.SoloSorter") -> {"Mail": true}
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
)");
}

TEST_F(SorterDomainAccess, WritesAndFlushesBetweenAddingAndRemovingTheSuite) {
    domain.writeHideFlags({{"Mail", true}});

    EXPECT_EQ(transcript(), R"(
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
CFPreferencesSetAppValue("UserSpecifiedFullScreenApplications", {"Mail": true}, "com.quarrybook.SoloSorter")
CFPreferencesSynchronize("com.quarrybook.SoloSorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
)");
}

TEST_F(SorterDomainAccess, ResetsTheFullDomainAndFlushesItsOwn) {
    domain.resetHideFlags(platform::Value());

    EXPECT_EQ(transcript(), R"(
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
CFPreferencesSetValue("UserSpecifiedFullScreenApplications", null, "com.quarrybook.Sorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesSynchronize("com.quarrybook.SoloSorter", "kCFPreferencesCurrentUser", "kCFPreferencesAnyHost")
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
)");
}

TEST_F(SorterDomainAccess, RemovesTheSuiteEvenWhenAnAccessFails) {
    for (std::size_t number = 1; number <= 4; ++number) {
        platform.transcript.failOperation(number);

        domain.writeHideFlags({});

        EXPECT_EQ(platform.preferences.openSuites(), 0U) << number;
    }
}

} // namespace qbsp

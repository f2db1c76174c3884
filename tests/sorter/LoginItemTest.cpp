#include "PaneTest.h"

namespace qbsp {

using LoginItem = PaneTest;

TEST_F(LoginItem, IsAbsentWithoutAJobList) {
    createPane();

    EXPECT_FALSE(pane().appIsPresentInLoginItems());

    EXPECT_EQ(transcript(), R"(
SMCopyAllJobDictionaries("kSMDomainUserLaunchd") -> null
)");
}

TEST_F(LoginItem, IsAbsentFromAnEmptyJobListAndNothingIsLogged) {
    world.jobs.emplace();
    createPane();

    EXPECT_FALSE(pane().appIsPresentInLoginItems());

    EXPECT_EQ(transcript(), R"(
SMCopyAllJobDictionaries("kSMDomainUserLaunchd") -> []
)");
}

TEST_F(LoginItem, IsPresentWhenTheEmbeddedSortersJobIsOnDemand) {
    world.jobs = {{{"Label", "com.example.other"}, {"OnDemand", false}},
                  {{"Label", embedded}, {"OnDemand", true}}};
    createPane();

    EXPECT_TRUE(pane().appIsPresentInLoginItems());
}

TEST_F(LoginItem, IsNotTheEditionsSorter) {
    world.jobs = {{{"Label", full}, {"OnDemand", true}}};
    createPane();

    EXPECT_FALSE(pane().appIsPresentInLoginItems());
}

using LoginItemAlert = PaneTest;

TEST_F(LoginItemAlert, ShowsTheMessageUnchangedAndOffersCheckFirst) {
    world.translations["gone wrong"] = "looked up once more";
    createPane();

    pane().showLoginItemEditFailureAlert("gone wrong");

    EXPECT_EQ(transcript(), R"(
NSAlert setAlertStyle:(2)
NSAlert setMessageText:("gone wrong")
NSBundle localizedStringForKey:value:table:("You may not have permissions to change the `Login Items'. Do you want to check this in the System Preferences > Accounts preferences?", "", null) -> "You may not have permissions to change the `Login Items'. Do you want to check this in the System Preferences > Accounts preferences?"
NSAlert setInformativeText:("You may not have permissions to change the `Login Items'. Do you want to check this in the System Preferences > Accounts preferences?")
NSBundle localizedStringForKey:value:table:("Check", "", null) -> "Check"
NSAlert addButtonWithTitle:("Check")
NSBundle localizedStringForKey:value:table:("Cancel", "", null) -> "Cancel"
NSAlert addButtonWithTitle:("Cancel")
NSAlert runModal() -> 1001
)");
}

TEST_F(LoginItemAlert, OpensTheAccountsPreferencesOnCheck) {
    world.alertAnswer = 1000;
    createPane();

    pane().showLoginItemEditFailureAlert("");

    EXPECT_EQ(operations().back(), "registrar showAccountsSystemPreferencePane()");
}

TEST_F(LoginItemAlert, OpensNothingOnAnyOtherAnswer) {
    for (const std::int64_t answer : {999, 1001, 0, -1, -1000}) {
        world.alertAnswer = answer;
        createPane();

        pane().showLoginItemEditFailureAlert("");

        EXPECT_EQ(operations().back(), "NSAlert runModal() -> " + std::to_string(answer));
    }
}

TEST_F(LoginItemAlert, OpensNothingWithoutARegistrar) {
    world.loader = simulated::Loader::absent;
    world.alertAnswer = 1000;
    createPane();

    pane().showLoginItemEditFailureAlert("");

    EXPECT_EQ(operations().back(), "NSAlert runModal() -> 1000");
}

} // namespace qbsp

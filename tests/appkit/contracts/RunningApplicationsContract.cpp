#include "Contract.h"
#include "stages/ApplicationsStage.h"

namespace qbsp::contracts {

namespace {

class RunningApplicationsContract : public Contract<ApplicationsStage> {
protected:
    [[nodiscard]] bool runs(platform::BundleIdentifier identifier) const {
        return stage->runningApplications().applicationIsRunning(identifier);
    }
};

class LaunchServicesContract : public Contract<ApplicationsStage> {};

class ServiceManagementContract : public Contract<ApplicationsStage> {
protected:
    [[nodiscard]] std::vector<platform::Dictionary> jobs() {
        return services.copyAllJobDictionaries(platform::JobDomain::userLaunchd)
            .value_or(std::vector<platform::Dictionary>());
    }

    platform::ServiceManagement& services = stage->serviceManagement();
};

class LoginItemContract : public ServiceManagementContract {};

const platform::Dictionary idleJob{{"Label", std::string(idleIdentifier.text)}, {"OnDemand", true}};

} // namespace

TEST_P(RunningApplicationsContract, AnApplicationCountsAsRunningFromItsStartToItsEnd) {
    EXPECT_FALSE(runs(idleIdentifier));

    stage->start();
    EXPECT_TRUE(runs(idleIdentifier));

    stage->end({});
    EXPECT_FALSE(runs(idleIdentifier));
}

TEST_P(RunningApplicationsContract, AnotherIdentifierIsAnotherApplication) {
    stage->start();

    EXPECT_FALSE(runs({"org.example.Idl"}));
    EXPECT_FALSE(runs({"org.example.idle"}));
    EXPECT_FALSE(runs({""}));
}

TEST_P(LaunchServicesContract, AnApplicationIsRegisteredHoweverOften) {
    for (const auto update : {platform::RegistrationUpdate::always, platform::RegistrationUpdate::ifNewer})
        EXPECT_EQ(stage->launchServices().registerURL(stage->application(), update), 0)
            << "an application should be registered with status 0";
}

TEST_P(LaunchServicesContract, WhatCannotBeRegisteredGivesAnotherStatus) {
    EXPECT_NE(stage->launchServices().registerURL(stage->nothing(), platform::RegistrationUpdate::always), 0);
}

TEST_P(ServiceManagementContract, ThereIsNoJobBeforeOneWasMade) {
    EXPECT_TRUE(jobs().empty());
}

TEST_P(ServiceManagementContract, AJobHasItsLabelAndIsOnDemand) {
    stage->makeJob(idleIdentifier);

    EXPECT_EQ(jobs(), std::vector{idleJob});
}

TEST_P(LoginItemContract, SwitchedOnItIsStartedAndAJobAndSwitchedOffItIsNeither) {
    const auto runs = [this] {
        return stage->runningApplications().applicationIsRunning(idleIdentifier);
    };

    services.loginItemSetEnabled(idleIdentifier, true);
    EXPECT_TRUE(stage->eventually(runs));
    EXPECT_EQ(jobs(), std::vector{idleJob});

    services.loginItemSetEnabled(idleIdentifier, false);
    EXPECT_TRUE(stage->eventually([&] { return !runs(); }));
    EXPECT_TRUE(jobs().empty());
}

TEST_P(LoginItemContract, WhatIsNotEmbeddedIsNeitherStartedNorAJob) {
    services.loginItemSetEnabled({"org.example.Nothing"}, true);

    EXPECT_TRUE(jobs().empty());
}

INSTANTIATE_TEST_SUITE_P(On, RunningApplicationsContract, onBothSides<ApplicationsStage>(), nameOfSide);
INSTANTIATE_TEST_SUITE_P(On, LaunchServicesContract, onBothSides<ApplicationsStage>(), nameOfSide);
INSTANTIATE_TEST_SUITE_P(On, ServiceManagementContract, onBothSides<ApplicationsStage>(), nameOfSide);
// The program that drives the simulation says what runs and is listed there.
INSTANTIATE_TEST_SUITE_P(On, LoginItemContract, onAppKit<ApplicationsStage>(), nameOfSide);

} // namespace qbsp::contracts

#include "Contract.h"
#include "Samples.h"
#include "stages/StoresStage.h"

namespace qbsp::contracts {

using platform::ApplicationID;
using platform::PreferenceKey;
using platform::Value;

namespace {

constexpr ApplicationID sorter{"org.example.Sorter"};
constexpr ApplicationID other{"org.example.Other"};
constexpr PreferenceKey key{"Key"};
constexpr platform::DefaultsKey sameKeyOfHost{"Key"};
const std::string sorterDomain(sorter.text);

class PreferencesContract : public Contract<StoresStage> {
protected:
    [[nodiscard]] bool flush(ApplicationID application = sorter) {
        return preferences.synchronize(application, platform::PreferencesUser::currentUser,
                                       platform::PreferencesHost::anyHost);
    }

    void setForAnyHost(const Value& value) {
        preferences.setValue(key, value, sorter, platform::PreferencesUser::currentUser,
                             platform::PreferencesHost::anyHost);
    }

    void addSuite() {
        preferences.addSuitePreferencesToApp(sorter, platform::kCFPreferencesCurrentApplication);
    }

    void removeSuite() {
        preferences.removeSuitePreferencesFromApp(sorter, platform::kCFPreferencesCurrentApplication);
    }

    platform::Preferences& preferences = stage->preferences();
};

} // namespace

TEST_P(PreferencesContract, AKeyThatWasNeverSetHasNoValue) {
    EXPECT_FALSE(preferences.copyAppValue(key, sorter).exists());
}

TEST_P(PreferencesContract, AValueOfEveryKindIsReadAsItWasSet) {
    for (const Value& value : valuesOfEveryKind()) {
        preferences.setAppValue(key, value, sorter);
        EXPECT_EQ(preferences.copyAppValue(key, sorter), value);
    }
}

TEST_P(PreferencesContract, OtherProcessesSeeWhatWasFlushed) {
    for (const Value& value : valuesOfEveryKind()) {
        preferences.setAppValue(key, value, sorter);
        EXPECT_TRUE(flush());
        EXPECT_EQ(platform::entry(stage->domainSeenByOthers(sorterDomain), "Key"), value);
    }
}

TEST_P(PreferencesContract, AValueForAnyHostIsSetInTheApplicationsDomain) {
    setForAnyHost("a text");

    EXPECT_EQ(preferences.copyAppValue(key, sorter), Value("a text"));
    EXPECT_TRUE(flush());
    EXPECT_EQ(platform::entry(stage->domainSeenByOthers(sorterDomain), "Key"), Value("a text"));
}

TEST_P(PreferencesContract, NoValueRemovesTheKey) {
    preferences.setAppValue(key, true, sorter);
    preferences.setAppValue(key, {}, sorter);
    EXPECT_FALSE(preferences.copyAppValue(key, sorter).exists());

    setForAnyHost(true);
    EXPECT_TRUE(flush());
    setForAnyHost({});
    EXPECT_TRUE(flush());
    EXPECT_FALSE(preferences.copyAppValue(key, sorter).exists());
    EXPECT_FALSE(stage->domainSeenByOthers(sorterDomain).contains("Key"));
}

TEST_P(PreferencesContract, DomainsAndKeysAreSeparate) {
    preferences.setAppValue(key, "a text", sorter);

    EXPECT_FALSE(preferences.copyAppValue(key, other).exists());
    EXPECT_FALSE(preferences.copyAppValue({"key"}, sorter).exists());
}

TEST_P(PreferencesContract, WhatOtherProcessesSetIsSeenAndKept) {
    stage->otherProcessSets(sorterDomain, "Theirs", "a text");

    EXPECT_EQ(preferences.copyAppValue({"Theirs"}, sorter), Value("a text"));
    preferences.setAppValue(key, true, sorter);
    EXPECT_TRUE(flush());
    EXPECT_EQ(stage->domainSeenByOthers(sorterDomain),
              (platform::Dictionary{{"Key", true}, {"Theirs", "a text"}}));
}

TEST_P(PreferencesContract, ASuiteIsLookedInWhileItIsAdded) {
    stage->userDefaults().setObjectForKey("of the host", sameKeyOfHost);
    EXPECT_FALSE(preferences.copyAppValue(key, sorter).exists());

    addSuite();
    EXPECT_EQ(preferences.copyAppValue(key, sorter), Value("of the host"));
    EXPECT_FALSE(preferences.copyAppValue(key, other).exists());

    removeSuite();
    EXPECT_FALSE(preferences.copyAppValue(key, sorter).exists());
}

TEST_P(PreferencesContract, TheApplicationsOwnValueComesBeforeTheSuites) {
    stage->userDefaults().setObjectForKey("of the host", sameKeyOfHost);
    preferences.setAppValue(key, "of the application", sorter);

    addSuite();

    EXPECT_EQ(preferences.copyAppValue(key, sorter), Value("of the application"));
}

TEST_P(PreferencesContract, NothingIsSetInTheSuite) {
    addSuite();

    preferences.setAppValue(key, "of the application", sorter);

    EXPECT_FALSE(stage->userDefaults().objectForKey(sameKeyOfHost).exists());
    removeSuite();
    EXPECT_EQ(preferences.copyAppValue(key, sorter), Value("of the application"));
}

TEST_P(PreferencesContract, AFlushThatFailsReturnsFalseAndTheNextOneWritesWhatWasSet) {
    const bool flushed = stage->flushInVain([this] { preferences.setAppValue(key, "a text", sorter); },
                                            [this] { return flush(); });

    EXPECT_FALSE(flushed);
    EXPECT_EQ(preferences.copyAppValue(key, sorter), Value("a text"));
    EXPECT_TRUE(flush());
    EXPECT_EQ(platform::entry(stage->domainSeenByOthers(sorterDomain), "Key"), Value("a text"));
}

INSTANTIATE_TEST_SUITE_P(On, PreferencesContract, onBothSides<StoresStage>(), nameOfSide);

} // namespace qbsp::contracts

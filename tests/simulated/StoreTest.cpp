#include "simulated/Store.h"

#include "simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

namespace qbsp::simulated {

TEST(Store, ShowsOthersWhatWasSetOnlyOnceItIsSynchronized) {
    Store store;

    store.set("key", 1);
    EXPECT_EQ(store.value("key"), 1);
    EXPECT_FALSE(store.seenByOthers().contains("key"));

    store.synchronize();
    EXPECT_EQ(store.seenByOthers().at("key"), 1);
}

TEST(Store, ShowsOthersARemovalOnlyOnceItIsSynchronized) {
    Store store;
    store.put("key", 1);

    store.set("key", {});

    EXPECT_FALSE(store.value("key").exists());
    EXPECT_TRUE(store.seenByOthers().contains("key"));
}

TEST(Store, TakesWhatAnotherProcessPutsThereAtOnce) {
    Store store;
    store.set("mine", 1);

    store.put("theirs", 2);

    EXPECT_EQ(store.contents().size(), 2U);
    EXPECT_EQ(store.seenByOthers().size(), 1U);
}

TEST(SimulatedDefaults, CanBeReadBeforeTheyAreSynchronizedAndAfterThatFailed) {
    SimulatedPlatform platform;
    platform.world.synchronizes = false;

    platform.userDefaults.setObjectForKey(7, platform::DefaultsKey{"key"});
    EXPECT_FALSE(platform.userDefaults.synchronize());

    EXPECT_EQ(platform.userDefaults.objectForKey(platform::DefaultsKey{"key"}), 7);
    EXPECT_TRUE(platform.world.defaults.seenByOthers().empty());
}

TEST(SimulatedPreferences, LookForAMissingKeyInTheHostsDefaultsWhileTheSuiteIsAdded) {
    SimulatedPlatform platform;
    constexpr platform::ApplicationID app{"com.example.app"};
    constexpr platform::PreferenceKey key{"key"};
    platform.world.defaults.put("key", "host");

    EXPECT_FALSE(platform.preferences.copyAppValue(key, app).exists());
    platform.preferences.addSuitePreferencesToApp(app, platform::kCFPreferencesCurrentApplication);
    EXPECT_EQ(platform.preferences.copyAppValue(key, app), "host");
    platform.world.domains["com.example.app"].put("key", "own");
    EXPECT_EQ(platform.preferences.copyAppValue(key, app), "own");
    platform.preferences.removeSuitePreferencesFromApp(app, platform::kCFPreferencesCurrentApplication);
    EXPECT_EQ(platform.preferences.copyAppValue(key, app), "own");
}

TEST(SimulatedPreferences, CountTheSuitesThatAreAdded) {
    SimulatedPlatform platform;
    constexpr platform::ApplicationID app{"com.example.app"};

    platform.preferences.addSuitePreferencesToApp(app, platform::kCFPreferencesCurrentApplication);
    EXPECT_EQ(platform.preferences.openSuites(), 1U);
    platform.preferences.removeSuitePreferencesFromApp(app, platform::kCFPreferencesCurrentApplication);
    EXPECT_EQ(platform.preferences.openSuites(), 0U);
    platform.preferences.removeSuitePreferencesFromApp(app, platform::kCFPreferencesCurrentApplication);
    EXPECT_EQ(platform.preferences.openSuites(), 0U);
}

} // namespace qbsp::simulated

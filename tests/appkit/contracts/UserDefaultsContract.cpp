#include "Contract.h"
#include "Samples.h"
#include "stages/StoresStage.h"

namespace qbsp::contracts {

using platform::Value;

namespace {

constexpr platform::DefaultsKey key{"Key"};

class UserDefaultsContract : public Contract<StoresStage> {
protected:
    platform::UserDefaults& userDefaults = stage->userDefaults();
};

} // namespace

TEST_P(UserDefaultsContract, AKeyThatWasNeverSetHasNoValue) {
    EXPECT_FALSE(userDefaults.objectForKey(key).exists());
}

TEST_P(UserDefaultsContract, AValueOfEveryKindIsReadAsItWasSet) {
    for (const Value& value : valuesOfEveryKind()) {
        userDefaults.setObjectForKey(value, key);
        EXPECT_EQ(userDefaults.objectForKey(key), value);
    }
}

TEST_P(UserDefaultsContract, ABooleanIsSetAsABoolean) {
    for (const bool value : {true, false}) {
        userDefaults.setBoolForKey(value, key);
        EXPECT_EQ(userDefaults.objectForKey(key), Value(value));
    }
}

TEST_P(UserDefaultsContract, OtherProcessesSeeWhatWasFlushedInTheHostsOwnDomain) {
    userDefaults.setBoolForKey(true, {"Flag"});
    for (const Value& value : valuesOfEveryKind()) {
        userDefaults.setObjectForKey(value, key);
        EXPECT_TRUE(userDefaults.synchronize());
        EXPECT_EQ(platform::entry(stage->defaultsSeenByOthers(), "Key"), value);
    }
    EXPECT_EQ(platform::entry(stage->defaultsSeenByOthers(), "Flag"), Value(true));
}

TEST_P(UserDefaultsContract, AFlushThatFailsReturnsFalseAndKeepsWhatWasSet) {
    const bool flushed = stage->flushInVain([this] { userDefaults.setBoolForKey(true, key); },
                                            [this] { return userDefaults.synchronize(); });

    EXPECT_FALSE(flushed);
    EXPECT_EQ(userDefaults.objectForKey(key), Value(true));
}

TEST_P(UserDefaultsContract, ALaterFlushWritesWhatAFailedOneDidNot) {
    EXPECT_FALSE(stage->flushInVain([this] { userDefaults.setBoolForKey(true, key); },
                                    [this] { return userDefaults.synchronize(); }));

    EXPECT_TRUE(userDefaults.synchronize());

    EXPECT_EQ(platform::entry(stage->defaultsSeenByOthers(), "Key"), Value(true));
}

TEST_P(UserDefaultsContract, AFlushAfterAFailedOneKeepsWhatOthersSetMeanwhile) {
    userDefaults.setObjectForKey("old", {"Theirs"});
    EXPECT_TRUE(userDefaults.synchronize());
    EXPECT_FALSE(stage->flushInVain([this] { userDefaults.setBoolForKey(true, key); },
                                    [this] { return userDefaults.synchronize(); }));
    stage->otherProcessSetsDefault("Theirs", "new");

    EXPECT_TRUE(userDefaults.synchronize());

    EXPECT_EQ(platform::entry(stage->defaultsSeenByOthers(), "Theirs"), Value("new"));
    EXPECT_EQ(platform::entry(stage->defaultsSeenByOthers(), "Key"), Value(true));
}

INSTANTIATE_TEST_SUITE_P(On, UserDefaultsContract, onBothSides<StoresStage>(), nameOfSide);

} // namespace qbsp::contracts

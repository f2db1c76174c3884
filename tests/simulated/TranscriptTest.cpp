#include "simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

namespace qbsp::simulated {

TEST(Transcript, CallsTheFunctionAsEachOperationBegins) {
    constexpr platform::DefaultsKey key{"key"};
    SimulatedPlatform platform;
    std::vector<bool> wasSet;
    platform.transcript.beforeEachOperation(
        [&] { wasSet.push_back(platform.world.defaults.value("key").exists()); });

    platform.userDefaults.setObjectForKey(1, key);
    std::ignore = platform.userDefaults.objectForKey(key);

    EXPECT_EQ(wasSet, (std::vector{false, true}));
}

} // namespace qbsp::simulated

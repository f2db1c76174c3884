#include "sorter/LoginItemJobs.h"

#include <gtest/gtest.h>

namespace qbsp {

namespace {

constexpr platform::BundleIdentifier exampleLabel{"com.example.Item"};

platform::Dictionary job(const platform::Value& itsLabel, const platform::Value& onDemand) {
    return {{"Label", itsLabel}, {"OnDemand", onDemand}};
}

} // namespace

TEST(LoginItemJobs, CountWhenTheyAreOnDemand) {
    EXPECT_TRUE(jobIsOnDemand({job("com.example.Item", true)}, exampleLabel));
    EXPECT_FALSE(jobIsOnDemand({job("com.example.Item", false)}, exampleLabel));
}

TEST(LoginItemJobs, DoNotCountWithoutTheFlag) {
    EXPECT_FALSE(jobIsOnDemand({{{"Label", "com.example.Item"}}}, exampleLabel));
}

TEST(LoginItemJobs, CountByTheFlagsBooleanValue) {
    EXPECT_TRUE(jobIsOnDemand({job("com.example.Item", "YES")}, exampleLabel));
    EXPECT_TRUE(jobIsOnDemand({job("com.example.Item", 7)}, exampleLabel));
    EXPECT_FALSE(jobIsOnDemand({job("com.example.Item", platform::Array{true})}, exampleLabel));
}

TEST(LoginItemJobs, AreKnownByTheirExactLabel) {
    for (const char* const other : {"com.example.item", "com.example.Item ", "com.example", ""})
        EXPECT_FALSE(jobIsOnDemand({job(other, true)}, exampleLabel)) << other;
}

TEST(LoginItemJobs, WithoutALabelMatchNothing) {
    EXPECT_FALSE(jobIsOnDemand({{{"OnDemand", true}}}, exampleLabel));
    EXPECT_FALSE(jobIsOnDemand({job(7, true)}, exampleLabel));
}

TEST(LoginItemJobs, HideLaterOnesOfTheSameLabel) {
    EXPECT_FALSE(
        jobIsOnDemand({job("com.example.Item", false), job("com.example.Item", true)}, exampleLabel));
    EXPECT_TRUE(jobIsOnDemand({job("com.example.Item", true), job("com.example.Item", false)}, exampleLabel));
}

TEST(LoginItemJobs, AreFoundAfterOthers) {
    EXPECT_TRUE(jobIsOnDemand({job("a", false), job(7, false), job("com.example.Item", true)}, exampleLabel));
}

TEST(LoginItemJobs, AreNotFoundInAnEmptyList) {
    EXPECT_FALSE(jobIsOnDemand({}, exampleLabel));
}

} // namespace qbsp

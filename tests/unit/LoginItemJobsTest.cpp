#include "sorter/LoginItemJobs.h"

#include <gtest/gtest.h>

namespace qbsp {

namespace {

constexpr platform::BundleIdentifier label{"com.example.Item"};

platform::Dictionary job(const platform::Value& itsLabel, const platform::Value& onDemand) {
    return {{"Label", itsLabel}, {"OnDemand", onDemand}};
}

} // namespace

TEST(LoginItemJobs, CountWhenTheyAreOnDemand) {
    EXPECT_TRUE(jobIsOnDemand({job("com.example.Item", true)}, label));
    EXPECT_FALSE(jobIsOnDemand({job("com.example.Item", false)}, label));
}

TEST(LoginItemJobs, DoNotCountWithoutTheFlag) {
    EXPECT_FALSE(jobIsOnDemand({{{"Label", "com.example.Item"}}}, label));
}

TEST(LoginItemJobs, CountByTheFlagsBooleanValue) {
    EXPECT_TRUE(jobIsOnDemand({job("com.example.Item", "YES")}, label));
    EXPECT_TRUE(jobIsOnDemand({job("com.example.Item", 7)}, label));
    EXPECT_FALSE(jobIsOnDemand({job("com.example.Item", platform::Array{true})}, label));
}

TEST(LoginItemJobs, AreKnownByTheirExactLabel) {
    for (const char* const other : {"com.example.item", "com.example.Item ", "com.example", ""})
        EXPECT_FALSE(jobIsOnDemand({job(other, true)}, label)) << other;
}

TEST(LoginItemJobs, WithoutALabelMatchNothing) {
    EXPECT_FALSE(jobIsOnDemand({{{"OnDemand", true}}}, label));
    EXPECT_FALSE(jobIsOnDemand({job(7, true)}, label));
}

TEST(LoginItemJobs, HideLaterOnesOfTheSameLabel) {
    EXPECT_FALSE(jobIsOnDemand({job("com.example.Item", false), job("com.example.Item", true)}, label));
    EXPECT_TRUE(jobIsOnDemand({job("com.example.Item", true), job("com.example.Item", false)}, label));
}

TEST(LoginItemJobs, AreFoundBehindOthers) {
    EXPECT_TRUE(jobIsOnDemand({job("a", false), job(7, false), job("com.example.Item", true)}, label));
}

TEST(LoginItemJobs, AreNotFoundInAnEmptyList) {
    EXPECT_FALSE(jobIsOnDemand({}, label));
}

} // namespace qbsp

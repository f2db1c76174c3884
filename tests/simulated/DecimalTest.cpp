#include "scenario/Decimal.h"

#include "simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

namespace qbsp::simulated {

namespace {

scenario::Decimal decimal(const char* digits) {
    return scenario::Decimal::parse(digits).value();
}

} // namespace

class SimulatedClock : public testing::Test {
protected:
    void send(std::string name, double delay) {
        platform.runLoop.performSelectorAfterDelay(
            platform::Selector{"message"}, [this, name = std::move(name)] { sent += name; },
            platform::Seconds(delay));
    }

    SimulatedPlatform platform;
    std::string sent;
};

TEST_F(SimulatedClock, SendsWhatFallsDueByTheEndOfTheTime) {
    send("a", 0.75);

    platform.runLoop.runFor(decimal("0.7"));
    EXPECT_EQ(sent, "");
    platform.runLoop.runFor(decimal("0.049999"));
    EXPECT_EQ(sent, "");
    platform.runLoop.runFor(decimal("0.000001"));
    EXPECT_EQ(sent, "a");
}

TEST_F(SimulatedClock, SendsInTheOrderInWhichMessagesFallDue) {
    send("late", 2);
    send("early", 1);
    send("together", 1);

    platform.runLoop.runFor(decimal("2"));

    EXPECT_EQ(sent, "earlytogetherlate");
}

TEST_F(SimulatedClock, SendsWhatAMessageSchedulesWithinTheSameTime) {
    platform.runLoop.performSelectorAfterDelay(
        platform::Selector{"message"}, [this] { send("second", 0.5); }, platform::Seconds(0.5));

    platform.runLoop.runFor(decimal("0.99"));
    EXPECT_EQ(sent, "");
    platform.runLoop.runFor(decimal("0.01"));
    EXPECT_EQ(sent, "second");
}

TEST_F(SimulatedClock, SendsEachMessageOnce) {
    send("a", 0);

    platform.runLoop.runFor(scenario::Decimal());
    platform.runLoop.runFor(decimal("10"));

    EXPECT_EQ(sent, "a");
}

} // namespace qbsp::simulated

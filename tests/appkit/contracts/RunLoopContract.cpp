#include "Contract.h"
#include "stages/DialogsStage.h"

namespace qbsp::contracts {

using platform::Seconds;

namespace {

constexpr platform::Selector selector{"message"};

class RunLoopContract : public Contract<DialogsStage> {
protected:
    void send(std::function<void()> message, Seconds delay) {
        stage->runLoop().performSelectorAfterDelay(selector, std::move(message), delay);
    }

    void runUntilSent(const int& count) {
        stage->runUntil([&] { return count > 0; });
    }
};

} // namespace

TEST_P(RunLoopContract, AMessageIsSentWhenTheLoopRunsAndNotBefore) {
    int sent = 0;

    send([&] { ++sent; }, Seconds(0));

    EXPECT_EQ(sent, 0) << "the message should wait until the loop runs";
    runUntilSent(sent);
}

TEST_P(RunLoopContract, AMessageIsSentOnceAndNotBeforeItsDelayHasPassed) {
    int sent = 0;
    int later = 0;
    const Seconds delay(0.1);

    send([&] { ++sent; }, delay);

    EXPECT_GE(stage->runUntil([&] { return sent > 0; }), delay);
    send([&] { ++later; }, delay);
    runUntilSent(later);
    EXPECT_EQ(sent, 1) << "the message should have been sent once";
}

TEST_P(RunLoopContract, MessagesThatWereScheduledEarlierStayScheduled) {
    std::vector<std::string> sent;

    send([&] { sent.emplace_back("late"); }, Seconds(0.1));
    send([&] { sent.emplace_back("early"); }, Seconds(0.02));

    stage->runUntil([&] { return sent.size() == 2; });
    EXPECT_EQ(sent, (std::vector<std::string>{"early", "late"}));
}

TEST_P(RunLoopContract, WhatAMessageHoldsIsKeptUntilItWasSentAndNoLonger) {
    auto held = std::make_shared<int>(0);
    const std::weak_ptr<int> watched = held;
    send([held] { ++*held; }, Seconds(0.02));

    held.reset();

    EXPECT_FALSE(watched.expired());
    stage->runUntil([&] { return watched.expired(); });
}

TEST_P(RunLoopContract, AMessageMaySendAnother) {
    int sent = 0;

    send([&] { send([&] { ++sent; }, Seconds(0.01)); }, Seconds(0.01));

    runUntilSent(sent);
    EXPECT_EQ(sent, 1) << "the message should have been sent once";
}

INSTANTIATE_TEST_SUITE_P(On, RunLoopContract, onBothSides<DialogsStage>(), nameOfSide);

} // namespace qbsp::contracts

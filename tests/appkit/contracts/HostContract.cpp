#include "Contract.h"
#include "stages/HostStage.h"

namespace qbsp::contracts {

namespace {

class HostContract : public Contract<HostStage> {};

class ProcessInfoContract : public Contract<HostStage> {};

class LogContract : public Contract<HostStage> {};

} // namespace

TEST_P(HostContract, ItIsSandboxedWhenTheApplicationSaysSo) {
    for (const bool isSandboxed : {true, false}) {
        stage->letHostAnswer({.isSandboxed = isSandboxed, .isPro = !isSandboxed});
        EXPECT_EQ(stage->host().isSandboxed(), isSandboxed);
    }
}

TEST_P(HostContract, ItIsTheFullEditionWhenTheApplicationSaysSo) {
    for (const bool isPro : {true, false}) {
        stage->letHostAnswer({.isSandboxed = !isPro, .isPro = isPro});
        EXPECT_EQ(stage->host().isPro(), isPro);
    }
}

TEST_P(HostContract, AnApplicationThatDoesNotKnowTheQuestionsCountsAsNeither) {
    stage->letHostNotKnowTheQuestions();

    EXPECT_FALSE(stage->host().isSandboxed());
    EXPECT_FALSE(stage->host().isPro());
}

TEST_P(ProcessInfoContract, TheProcessHasTheNameThatOthersSee) {
    EXPECT_EQ(stage->processInfo().processName(), stage->trueProcessName());
}

TEST_P(LogContract, ALineIsWrittenUnchanged) {
    const std::string line = "ERROR: Größe 100% %@ %s %d of 'Mail'";

    const std::string logged = stage->logged([&] { stage->log().log(line); });

    EXPECT_NE(logged.find(line), std::string::npos) << logged;
    EXPECT_TRUE(logged.ends_with('\n'));
}

TEST_P(LogContract, EachMessageIsALineOfItsOwn) {
    const std::string logged = stage->logged([this] {
        stage->log().log("one");
        stage->log().log("two");
    });

    EXPECT_LT(logged.find("one"), logged.find('\n'));
    EXPECT_GT(logged.find("two"), logged.find('\n'));
}

INSTANTIATE_TEST_SUITE_P(On, HostContract, onBothSides<HostStage>(), nameOfSide);
INSTANTIATE_TEST_SUITE_P(On, ProcessInfoContract, onBothSides<HostStage>(), nameOfSide);
INSTANTIATE_TEST_SUITE_P(On, LogContract, onBothSides<HostStage>(), nameOfSide);

} // namespace qbsp::contracts

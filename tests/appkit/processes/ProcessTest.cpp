#include "processes/Process.h"

#include "Child.h"
#include "processes/Session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/prctl.h>
#include <unistd.h>

namespace processes {

TEST(Process, IsAliveUntilItEnds) {
    const Child child;
    const auto process = processOfNumber(child.pid());

    ASSERT_TRUE(process);
    EXPECT_TRUE(isAlive(*process));
    EXPECT_FALSE(hasEnded(*process));
    EXPECT_EQ(executableOf(child.pid()), std::filesystem::read_symlink("/proc/self/exe"));
}

TEST(Process, IsGoneOnceItIsKilledThoughItsParentHasNotReapedIt) {
    Child child;
    const auto process = processOfNumber(child.pid());
    ASSERT_TRUE(process);

    child.kill();
    child.awaitEnd();

    EXPECT_FALSE(isAlive(*process));
    EXPECT_TRUE(hasEnded(*process));
    EXPECT_FALSE(processOfNumber(child.pid()));
    EXPECT_EQ(executableOf(child.pid()), "");
    EXPECT_FALSE(askToQuit(*process));
}

TEST(Process, QuitsWhenItIsAskedTo) {
    const Child child;
    const auto process = processOfNumber(child.pid());
    ASSERT_TRUE(process);

    EXPECT_TRUE(askToQuit(*process));
    child.awaitEnd();

    EXPECT_FALSE(isAlive(*process));
}

TEST(Process, IsNotALaterProcessOfTheSameNumber) {
    const Child child;
    auto earlier = processOfNumber(child.pid());
    ASSERT_TRUE(earlier);
    --earlier->start;

    EXPECT_FALSE(isAlive(*earlier));
    EXPECT_FALSE(askToQuit(*earlier));
    EXPECT_TRUE(processOfNumber(child.pid()));
}

TEST(Process, MayHaveAnyName) {
    const auto process = processOfNumber(getpid());
    ASSERT_TRUE(process);

    prctl(PR_SET_NAME, ") Z 1 (x");

    EXPECT_EQ(processOfNumber(getpid()), process);
}

TEST(Process, IsNotFoundForTheSystemsNumberOrAnInvalidOne) {
    EXPECT_FALSE(processOfNumber(0));
    EXPECT_FALSE(processOfNumber(-1));
    EXPECT_FALSE(processOfNumber(1));
}

TEST(Process, HasNotEndedBecauseItCannotBeRead) {
    const Child child;
    const auto process = processOfNumber(child.pid());
    ASSERT_TRUE(process);

    const NoDescriptors scarcity;

    EXPECT_FALSE(processOfNumber(child.pid()));
    EXPECT_FALSE(hasEnded(*process));
}

TEST(EndOfAProcess, IsReadableFromThenOn) {
    Child child;
    const auto process = processOfNumber(child.pid());
    ASSERT_TRUE(process);
    const Descriptor end = endOf(*process);
    ASSERT_TRUE(end.isOpen());
    EXPECT_FALSE(isReadable(end.number()));

    child.kill();

    EXPECT_TRUE(becomesReadable(end.number()));
    child.reap();
    EXPECT_TRUE(isReadable(end.number()));
}

TEST(EndOfAProcess, IsNotTheEndOfALaterOneOfTheSameNumber) {
    const Child child;
    auto earlier = processOfNumber(child.pid());
    ASSERT_TRUE(earlier);
    --earlier->start;

    EXPECT_FALSE(endOf(*earlier).isOpen());
    EXPECT_TRUE(hasEnded(*earlier));
}

TEST(EndOfAProcess, CannotBeWaitedForOnceItHasCome) {
    Child child;
    const auto process = processOfNumber(child.pid());
    ASSERT_TRUE(process);

    child.kill();
    child.awaitEnd();

    EXPECT_FALSE(endOf(*process).isOpen());
    child.reap();
    EXPECT_FALSE(endOf(*process).isOpen());
    EXPECT_TRUE(hasEnded(*process));
}

TEST(EndOfAProcess, IsNotInheritedByPrograms) {
    const auto self = processOfNumber(getpid());
    ASSERT_TRUE(self);

    EXPECT_EQ(fcntl(endOf(*self).number(), F_GETFD), FD_CLOEXEC);
}

TEST(ProcessesOfUser, AreThoseThatExecuteAWantedFile) {
    const auto self = processOfNumber(getpid());
    ASSERT_TRUE(self);
    const std::string own = executableOf(getpid());

    const auto same = processesOfUser([&](const std::string& executable) { return executable == own; });
    const auto none = processesOfUser([](const std::string&) { return false; });

    EXPECT_NE(std::ranges::find(same, *self), same.end());
    EXPECT_TRUE(none.empty());
}

TEST(Session, IsSharedByThoseWithTheSameTemporaryFolder) {
    const auto self = processOfNumber(getpid());
    ASSERT_TRUE(self);
    const char* folder = std::getenv("TEMP");
    const std::string usual = folder == nullptr ? "" : folder;
    EXPECT_TRUE(sharesSession(*self));

    setenv("TEMP", "/another", 1);
    EXPECT_FALSE(sharesSession(*self));

    folder == nullptr ? unsetenv("TEMP") : setenv("TEMP", usual.c_str(), 1);
}

} // namespace processes

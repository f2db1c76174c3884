#include "processes/Process.h"

#include "processes/Session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace processes {

namespace {

/// A child of this process that does nothing until it is asked to quit.
class Child {
public:
    Child() : pid_(fork()) {
        while (pid_ == 0)
            pause();
    }

    ~Child() {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }

    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    [[nodiscard]] pid_t pid() const { return pid_; }

    /// Returns once it has ended; its parent is not told of that yet.
    void waitForItsEnd() const {
        siginfo_t ended = {};
        waitid(P_PID, static_cast<id_t>(pid_), &ended, WEXITED | WNOWAIT);
    }

private:
    pid_t pid_;
};

} // namespace

TEST(Process, IsAliveUntilItEnds) {
    const Child child;
    const auto process = processOfNumber(child.pid());

    ASSERT_TRUE(process);
    EXPECT_TRUE(isAlive(*process));
    EXPECT_EQ(executableOf(*process), std::filesystem::read_symlink("/proc/self/exe"));
}

TEST(Process, IsGoneWhenItWasKilledAlthoughItsParentTookNoNotice) {
    const Child child;
    const auto process = processOfNumber(child.pid());
    ASSERT_TRUE(process);

    kill(child.pid(), SIGKILL);
    child.waitForItsEnd();

    EXPECT_FALSE(isAlive(*process));
    EXPECT_FALSE(processOfNumber(child.pid()));
    EXPECT_EQ(executableOf(*process), "");
    EXPECT_FALSE(askToQuit(*process));
}

TEST(Process, QuitsWhenItIsAsked) {
    const Child child;
    const auto process = processOfNumber(child.pid());
    ASSERT_TRUE(process);

    EXPECT_TRUE(askToQuit(*process));
    child.waitForItsEnd();

    EXPECT_FALSE(isAlive(*process));
}

TEST(Process, IsNotAnotherThatBearsItsNumber) {
    const Child child;
    auto earlier = processOfNumber(child.pid());
    ASSERT_TRUE(earlier);
    --earlier->start;

    EXPECT_FALSE(isAlive(*earlier));
    EXPECT_FALSE(askToQuit(*earlier));
    EXPECT_TRUE(processOfNumber(child.pid()));
}

TEST(Process, MayBearAnyName) {
    const auto process = processOfNumber(getpid());
    ASSERT_TRUE(process);

    prctl(PR_SET_NAME, ") Z 1 (x");

    EXPECT_EQ(processOfNumber(getpid()), process);
}

TEST(Process, IsNoneOfTheSystemsOrOfNoNumber) {
    EXPECT_FALSE(processOfNumber(0));
    EXPECT_FALSE(processOfNumber(-1));
    EXPECT_FALSE(processOfNumber(1));
}

TEST(ProcessesOfUser, IncludeThisOne) {
    const auto all = processesOfUser();
    const auto self = processOfNumber(getpid());

    ASSERT_TRUE(self);
    EXPECT_NE(std::find(all.begin(), all.end(), *self), all.end());
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

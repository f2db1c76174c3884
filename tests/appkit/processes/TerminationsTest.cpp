#include "processes/Terminations.h"

#include "Child.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <iterator>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

namespace processes {

namespace {

using Identifiers = std::vector<std::string>;

const std::string sorter = "com.quarrybook.Sorter";
const std::string mail = "org.example.Mail";

/// The application of that identifier that the process is.
Application application(const Child& process, const std::string& identifier) {
    return {processOfNumber(process.pid()).value_or(Process()), "/" + identifier + ".app", identifier};
}

void end(Child& process) {
    process.kill();
    process.reap();
}

std::ptrdiff_t openDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

/// From now on this process has a system that does not know how to watch another.
bool forgetPidfdOpen() {
    constexpr auto numberOfCall = static_cast<unsigned>(offsetof(seccomp_data, nr));
    sock_filter steps[] = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, numberOfCall),
                           BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_pidfd_open, 0, 1),
                           BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS),
                           BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    const sock_fprog program{static_cast<unsigned short>(std::size(steps)), std::data(steps)};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

class TerminationsTest : public testing::Test {
protected:
    void learnBoth() { terminations.learn({application(first, sorter), application(second, mail)}); }

    Child first;
    Child second;
    Terminations terminations;
};

} // namespace

TEST_F(TerminationsTest, AreNoneWhileNothingEnds) {
    learnBoth();
    learnBoth();

    EXPECT_EQ(terminations.ended(), Identifiers());
    EXPECT_FALSE(isReadable(terminations.descriptor()));
}

TEST_F(TerminationsTest, AreReportedOnce) {
    learnBoth();

    end(first);
    EXPECT_EQ(terminations.ended(), Identifiers{sorter});
    EXPECT_EQ(terminations.ended(), Identifiers());

    end(second);
    EXPECT_EQ(terminations.ended(), Identifiers{mail});
}

TEST_F(TerminationsTest, WakeWhoeverWaitsUntilTheyAreReported) {
    learnBoth();
    end(first);
    EXPECT_TRUE(becomesReadable(terminations.descriptor()));

    EXPECT_EQ(terminations.ended(), Identifiers{sorter});

    EXPECT_FALSE(isReadable(terminations.descriptor()));
    end(second);
    EXPECT_TRUE(becomesReadable(terminations.descriptor()));
}

TEST_F(TerminationsTest, WakeNobodyOnceReportedThoughAnotherProcessHasACopyOfTheDescriptor) {
    learnBoth();
    const Child copy;
    end(first);

    EXPECT_EQ(terminations.ended(), Identifiers{sorter});

    EXPECT_FALSE(isReadable(terminations.descriptor()));
}

TEST_F(TerminationsTest, AreReportedThoughTheParentTakesNoNotice) {
    learnBoth();

    first.kill();

    EXPECT_TRUE(becomesReadable(terminations.descriptor()));
    EXPECT_EQ(terminations.ended(), Identifiers{sorter});
    EXPECT_FALSE(isReadable(terminations.descriptor()));
}

TEST_F(TerminationsTest, IncludeAnApplicationThatQuitsByItself) {
    learnBoth();

    kill(first.pid(), SIGTERM);

    EXPECT_TRUE(becomesReadable(terminations.descriptor()));
    EXPECT_EQ(terminations.ended(), Identifiers{sorter});
}

TEST_F(TerminationsTest, AreNotReportedBeforeTheProcessHasGone) {
    learnBoth();

    terminations.announced(first.pid(), sorter);
    EXPECT_EQ(terminations.ended(), Identifiers());

    end(first);
    EXPECT_EQ(terminations.ended(), Identifiers{sorter});
}

TEST_F(TerminationsTest, AreReportedOnceHoweverLateAndOftenTheyAreAnnounced) {
    learnBoth();
    end(first);
    EXPECT_EQ(terminations.ended(), Identifiers{sorter});

    terminations.announced(first.pid(), sorter);
    EXPECT_EQ(terminations.ended(), Identifiers());

    terminations.announced(first.pid(), sorter);
    EXPECT_EQ(terminations.ended(), Identifiers());
}

TEST_F(TerminationsTest, IncludeAnApplicationThatOnlyANoticeNamed) {
    terminations.announced(first.pid(), sorter);
    EXPECT_EQ(terminations.ended(), Identifiers());

    end(first);

    EXPECT_TRUE(becomesReadable(terminations.descriptor()));
    EXPECT_EQ(terminations.ended(), Identifiers{sorter});
}

TEST_F(TerminationsTest, IncludeAnApplicationThatHadGoneBeforeAnyNoticeOfItCame) {
    end(first);

    terminations.announced(first.pid(), sorter);
    EXPECT_EQ(terminations.ended(), Identifiers{sorter});

    terminations.announced(first.pid(), sorter);
    EXPECT_EQ(terminations.ended(), Identifiers());
}

TEST_F(TerminationsTest, IncludeAnApplicationThatEndedSinceTheLookThatFoundIt) {
    const auto found = application(first, sorter);
    end(first);

    terminations.learn({found});

    EXPECT_EQ(terminations.ended(), Identifiers{sorter});
}

TEST_F(TerminationsTest, AreReportedOnceThoughTheAnnouncementNamesNoProcess) {
    learnBoth();

    terminations.announcedEnd(sorter);
    EXPECT_EQ(terminations.ended(), Identifiers());

    end(first);
    EXPECT_EQ(terminations.ended(), Identifiers{sorter});
    terminations.announcedEnd(sorter);
    EXPECT_EQ(terminations.ended(), Identifiers());
}

TEST_F(TerminationsTest, IncludeAnUnknownApplicationWhoseAnnouncementNamesNoProcess) {
    for (int times = 0; times < 2; ++times) {
        terminations.announcedEnd(sorter);

        EXPECT_EQ(terminations.ended(), Identifiers{sorter});
    }
}

TEST_F(TerminationsTest, DoNotIncludeWhatIsNoApplication) {
    end(first);

    terminations.announced(first.pid(), "");
    terminations.announcedEnd("");

    EXPECT_EQ(terminations.ended(), Identifiers());
}

TEST_F(TerminationsTest, TellOneProcessFromALaterOneOfTheSameNumber) {
    const auto later = application(first, mail);
    Application earlier = application(first, sorter);
    --earlier.process.start;
    terminations.learn({earlier, later});

    EXPECT_EQ(terminations.ended(), Identifiers{sorter});

    end(first);
    EXPECT_EQ(terminations.ended(), Identifiers{mail});
}

TEST_F(TerminationsTest, IncludeALaterProcessWhoseNumberWasReportedBefore) {
    Application earlier = application(first, sorter);
    --earlier.process.start;
    terminations.learn({earlier});
    EXPECT_EQ(terminations.ended(), Identifiers{sorter});

    terminations.learn({application(first, sorter)});
    terminations.announced(first.pid(), sorter);
    end(first);

    EXPECT_EQ(terminations.ended(), Identifiers{sorter});
}

TEST_F(TerminationsTest, AreNotMadeUpWhileNoFileCanBeOpened) {
    const auto running = application(first, sorter);
    {
        const NoDescriptors scarcity;
        terminations.learn({running});
        EXPECT_EQ(terminations.ended(), Identifiers());
    }
    terminations.learn({running});

    end(first);

    EXPECT_TRUE(becomesReadable(terminations.descriptor()));
    EXPECT_EQ(terminations.ended(), Identifiers{sorter});
}

TEST_F(TerminationsTest, AreReportedThoughNoFileCanBeOpenedWhenTheyCome) {
    learnBoth();
    const NoDescriptors scarcity;

    end(first);

    EXPECT_TRUE(becomesReadable(terminations.descriptor()));
    EXPECT_EQ(terminations.ended(), Identifiers{sorter});
}

TEST_F(TerminationsTest, LeaveNoDescriptorBehind) {
    const auto before = openDescriptors();
    {
        Terminations others;
        others.learn({application(first, sorter), application(second, mail)});
        EXPECT_EQ(openDescriptors(), before + 3);

        end(first);
        EXPECT_EQ(others.ended(), Identifiers{sorter});
        EXPECT_EQ(openDescriptors(), before + 2);
    }
    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(TerminationsTest, PassNoDescriptorToPrograms) {
    EXPECT_EQ(fcntl(terminations.descriptor(), F_GETFD), FD_CLOEXEC);
}

TEST(TerminationsOnAnOlderSystem, AreFoundByTheNextLook) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");

    EXPECT_EXIT(
        {
            const bool isOlder = forgetPidfdOpen();
            Child own;
            Terminations terminations;
            terminations.learn({application(own, sorter)});
            const bool isKnown = terminations.ended().empty();
            end(own);
            const bool isAwaited = isReadable(terminations.descriptor());
            const bool isFound = terminations.ended() == Identifiers{sorter};
            std::_Exit(isOlder && isKnown && !isAwaited && isFound ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

} // namespace processes

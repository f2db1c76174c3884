#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace processes {

/// A child of this process that does nothing until it is asked to quit, or its parent has gone.
class Child {
public:
    Child() : pid_(fork()) {
        if (pid_ == 0)
            prctl(PR_SET_PDEATHSIG, SIGKILL);
        while (pid_ == 0)
            pause();
    }

    ~Child() {
        if (isOwed_) {
            kill();
            reap();
        }
    }

    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    [[nodiscard]] pid_t pid() const { return pid_; }

    void kill() const { ::kill(pid_, SIGKILL); }

    /// Returns once it has ended; its parent is not told of that yet.
    void awaitEnd() const {
        siginfo_t ended = {};
        waitid(P_PID, static_cast<id_t>(pid_), &ended, WEXITED | WNOWAIT);
    }

    /// Returns once it has ended, and nothing is left of it.
    void reap() {
        waitpid(pid_, nullptr, 0);
        isOwed_ = false;
    }

private:
    pid_t pid_;
    bool isOwed_ = true;
};

/// No file can be opened while it exists.
class NoDescriptors {
public:
    NoDescriptors() {
        getrlimit(RLIMIT_NOFILE, &usual_);
        const int lowestFree = dup(STDERR_FILENO);
        close(lowestFree);
        const rlimit none{static_cast<rlim_t>(lowestFree), usual_.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    }

    ~NoDescriptors() { setrlimit(RLIMIT_NOFILE, &usual_); }

    NoDescriptors(const NoDescriptors&) = delete;
    NoDescriptors& operator=(const NoDescriptors&) = delete;

private:
    rlimit usual_ = {};
};

[[nodiscard]] inline bool becomesReadable(int descriptor, int milliseconds = 10'000) {
    pollfd question{descriptor, POLLIN, 0};
    return poll(&question, 1, milliseconds) > 0;
}

[[nodiscard]] inline bool isReadable(int descriptor) {
    return becomesReadable(descriptor, 0);
}

} // namespace processes

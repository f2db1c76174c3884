#include "Supervision.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <linux/filter.h>
#include <poll.h>
#include <string_view>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace faults {

namespace {

/// Asking for that file says that the first half of the work is done.
constexpr const char* betweenTheHalves = "/between/the/halves";

void require(bool success, const char* what) {
    if (success)
        return;
    std::perror(what);
    std::_Exit(EXIT_FAILURE);
}

// The jumps of a filter are short, so that each number has a return of its own.
std::vector<sock_filter> filterOfFileCalls() {
    std::vector<sock_filter> filter{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (const unsigned number : numbersOfFileCalls()) {
        filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 1));
        filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF));
    }
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    return filter;
}

/// From now on every call on files of this process waits for a verdict, which is asked for at the descriptor.
int listenToThisProcess() {
    std::vector<sock_filter> filter = filterOfFileCalls();
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    require(prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0, "no new privileges");
    const auto listener =
        syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_NEW_LISTENER, &program);
    require(listener >= 0, "the filter of system calls");
    return static_cast<int>(listener);
}

[[noreturn]] void doWork(const Work& work, const std::array<int, 2>& channels) {
    const int channel = channels[1];
    close(channels[0]);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const auto act = work.prepare();
    const int listener = listenToThisProcess();
    // Neither call is one on files: nobody could judge it yet.
    require(send(channel, &listener, sizeof listener, 0) == sizeof listener, "the supervisor");
    require(recv(channel, nullptr, 0, 0) == 0, "the supervisor");
    act();
    access(betweenTheHalves, F_OK);
    _exit(work.afterwards() ? EXIT_SUCCESS : EXIT_FAILURE);
}

class Supervisor {
public:
    Supervisor(pid_t process, int listener, const Supervision& supervision)
        : process_(process), listener_(listener), supervision_(supervision) {}

    /// Returns once the process has ended.
    void supervise() {
        pollfd request{listener_, POLLIN, 0};
        while (poll(&request, 1, longest) > 0 && (request.revents & POLLIN) != 0)
            judgeNext();
        // Else it waits for something that does not come.
        kill(process_, SIGKILL);
    }

private:
    static constexpr int longest = 20'000; // ms

    void judgeNext() {
        seccomp_notif request{};
        if (ioctl(listener_, SECCOMP_IOCTL_NOTIF_RECV, &request) != 0)
            return; // the process has ended meanwhile
        seccomp_notif_resp response{.id = request.id, .val = 0, .error = 0, .flags = 0};
        const Verdict verdict = verdictOn(fileCallOf(request));
        if (verdict == isKilled)
            kill(process_, SIGKILL);
        else if (verdict == isMade)
            response.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
        else
            response.error = -verdict;
        ioctl(listener_, SECCOMP_IOCTL_NOTIF_SEND, &response);
    }

    Verdict verdictOn(const FileCall& call) {
        if (call.file == betweenTheHalves) {
            isInFirstHalf_ = false;
            supervision_.inBetween();
        }
        return isInFirstHalf_ ? supervision_.judge(call) : isMade;
    }

    pid_t process_;
    int listener_;
    const Supervision& supervision_;
    bool isInFirstHalf_ = true;
};

int listenerOf(pid_t process, int channel) {
    int number = -1;
    if (recv(channel, &number, sizeof number, 0) != sizeof number)
        return -1;
    const auto descriptor = syscall(SYS_pidfd_open, process, 0);
    const auto listener = syscall(SYS_pidfd_getfd, descriptor, number, 0);
    require(listener >= 0, "the process's descriptor");
    close(static_cast<int>(descriptor));
    return static_cast<int>(listener);
}

} // namespace

int supervised(const Work& work, const Supervision& supervision) {
    std::array<int, 2> channel{};
    require(socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, channel.data()) == 0, "socketpair");
    const pid_t process = fork();
    if (process == 0)
        doWork(work, channel);
    close(channel[1]);
    const int listener = listenerOf(process, channel[0]);
    close(channel[0]); // the process goes on
    if (listener >= 0)
        Supervisor(process, listener, supervision).supervise();
    close(listener);
    int status = 0;
    waitpid(process, &status, 0);
    return status;
}

} // namespace faults

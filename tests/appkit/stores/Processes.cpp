#include "Processes.h"

#include "files/Owner.h"

#include <gtest/gtest.h>

#include <array>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>
#include <vector>

namespace {

constexpr uid_t nobody = 65534;

} // namespace

std::string inAnotherProcess(const std::function<std::string()>& work) {
    std::array<int, 2> channel{};
    EXPECT_EQ(pipe(channel.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        const std::string text = work();
        std::ignore = write(channel[1], text.data(), text.size());
        _exit(0);
    }
    close(channel[1]);
    std::string text(1000, '\0');
    const auto length = read(channel[0], text.data(), text.size());
    close(channel[0]);
    waitpid(child, nullptr, 0);
    text.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    return text;
}

std::string asAnotherUser(const std::function<std::string()>& work) {
    return inAnotherProcess([&] {
        const bool isOther = geteuid() != 0 || (setgid(nobody) == 0 && setuid(nobody) == 0);
        return isOther ? work() : "still root";
    });
}

std::string textOfEndedProcess() {
    return inAnotherProcess(files::thisProcess);
}

void runAtOnce(int processes, const std::function<void()>& work) {
    std::vector<pid_t> children;
    for (int process = 0; process < processes; ++process) {
        children.push_back(fork());
        if (children.back() == 0) {
            work();
            _exit(0);
        }
    }
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
}

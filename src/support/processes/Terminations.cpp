#include "processes/Terminations.h"

#include <algorithm>
#include <poll.h>
#include <sys/epoll.h>
#include <tuple>

namespace processes {

namespace {

// No process has this number.
constexpr Process unknown{};

bool isReadable(const Descriptor& descriptor) {
    pollfd question{descriptor.number(), POLLIN, 0};
    return poll(&question, 1, 0) > 0;
}

bool hasGone(const Process& process, const Descriptor& end) {
    return end.isOpen() ? isReadable(end) : hasEnded(process);
}

} // namespace

Terminations::Terminations() : wakeUp_(epoll_create1(EPOLL_CLOEXEC)) {}

void Terminations::learn(const std::vector<Application>& running) {
    for (const auto& [process, bundle, identifier] : running)
        know(process, identifier);
}

void Terminations::announced(pid_t pid, const std::string& identifier) {
    const bool isKnown =
        std::ranges::any_of(known_, [&](const auto& known) { return known.first.pid == pid; });
    if (!isKnown && !reported_.contains(pid) && !identifier.empty())
        know(processOfNumber(pid).value_or(Process{pid}), identifier);
}

void Terminations::announcedEnd(const std::string& identifier) {
    const bool isKnown =
        std::ranges::any_of(known_, [&](const auto& known) { return known.second.identifier == identifier; });
    const bool wasReported =
        std::erase_if(reported_, [&](const auto& reported) { return reported.second == identifier; }) > 0;
    if (!isKnown && !wasReported && !identifier.empty())
        know(unknown, identifier);
}

std::vector<std::string> Terminations::ended() {
    std::vector<std::string> identifiers;
    std::erase_if(known_, [&](const auto& known) {
        const auto& [process, application] = known;
        if (!hasGone(process, application.end))
            return false;
        // Closing it would not be enough where another process has a copy of the descriptor.
        std::ignore = epoll_ctl(wakeUp_.number(), EPOLL_CTL_DEL, application.end.number(), nullptr);
        identifiers.push_back(application.identifier);
        if (process != unknown)
            reported_.insert_or_assign(process.pid, application.identifier);
        return true;
    });
    return identifiers;
}

void Terminations::know(const Process& process, const std::string& identifier) {
    Known& application = known_[process];
    application.identifier = identifier;
    if (application.end.isOpen())
        return;
    // If the system cannot watch it now, the next look tries again.
    application.end = endOf(process);
    epoll_event readable{EPOLLIN, {}};
    // The end of what cannot be watched is noticed at the next look.
    std::ignore = epoll_ctl(wakeUp_.number(), EPOLL_CTL_ADD, application.end.number(), &readable);
}

} // namespace processes

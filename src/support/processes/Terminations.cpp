#include "processes/Terminations.h"

#include <algorithm>
#include <utility>

namespace processes {

std::vector<std::string> Terminations::look(const std::vector<Application>& running) {
    std::map<Process, std::string> now;
    for (const auto& [process, bundle, identifier] : running) {
        now.emplace(process, identifier);
        reported_.erase(process.pid);
    }
    std::vector<std::string> ended;
    for (const auto& [process, identifier] : std::exchange(known_, now))
        if (!now.contains(process)) {
            ended.push_back(identifier);
            if (process.pid != unknown)
                reported_.insert_or_assign(process.pid, identifier);
        }
    return ended;
}

void Terminations::announced(pid_t pid, const std::string& identifier) {
    const auto isMeant = [&](pid_t each, const std::string& itsIdentifier) {
        return pid == unknown ? itsIdentifier == identifier : each == pid;
    };
    const bool isKnown = std::ranges::any_of(
        known_, [&](const auto& application) { return isMeant(application.first.pid, application.second); });
    const bool wasReported = std::erase_if(reported_, [&](const auto& application) {
                                 return isMeant(application.first, application.second);
                             }) > 0;
    if (!isKnown && !wasReported && !identifier.empty())
        known_.emplace(Process{pid}, identifier);
}

} // namespace processes

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
            reported_.insert(process.pid);
        }
    return ended;
}

void Terminations::announced(pid_t pid, const std::string& identifier) {
    const bool isKnown = std::any_of(known_.begin(), known_.end(),
                                     [&](const auto& application) { return application.first.pid == pid; });
    const bool wasReported = reported_.erase(pid) > 0;
    if (!isKnown && !wasReported && !identifier.empty())
        known_.emplace(Process{pid}, identifier);
}

} // namespace processes

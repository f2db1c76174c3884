#pragma once

#include "processes/Applications.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace processes {

/// Tells which applications ended, each once, from looks at those that run and from notices that applications
/// send of their own end. Either may come first, and one that was killed sends none.
class Terminations {
public:
    explicit Terminations(const std::vector<Application>& running) { std::ignore = look(running); }

    /// The identifiers of the applications that ended since the last look.
    [[nodiscard]] std::vector<std::string> look(const std::vector<Application>& running);

    /// The application of that process number announced its end; 0 for one that told only its identifier. It
    /// may have come and gone between two looks; then the next look reports it.
    void announced(pid_t pid, const std::string& identifier);

private:
    static constexpr pid_t unknown = 0;

    std::map<Process, std::string> known_;
    std::map<pid_t, std::string> reported_;
};

} // namespace processes

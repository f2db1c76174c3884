#pragma once

#include "processes/Applications.h"
#include "processes/Descriptor.h"

#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

namespace processes {

/// Finds out which applications ended, each once and after its process has gone. Knows the applications that
/// it was told of, by a look at those that run or by notices that they send themselves. Look and notice may
/// come in any order, and an application that is killed sends no notice. The system wakes whoever waits for
/// descriptor().
class Terminations {
public:
    Terminations();

    /// Readable while ended() has something to return of an application whose end the system reports; see
    /// endOf(). Negative when the system has no descriptor left.
    [[nodiscard]] int descriptor() const { return wakeUp_.number(); }

    /// These applications run: the new ones among them are known from now on.
    void learn(const std::vector<Application>& running);

    /// A notice names the application of that process number, because it has started or is about to end. One
    /// that is not known yet is known from now on, and may have gone already. An empty identifier is no
    /// application's.
    void announced(pid_t pid, const std::string& identifier);

    /// A notice says that an application of that identifier is about to end, and not which process it is.
    void announcedEnd(const std::string& identifier);

    /// The identifiers of the known applications that have ended since the last time.
    [[nodiscard]] std::vector<std::string> ended();

private:
    struct Known {
        std::string identifier;
        Descriptor end;
    };

    void know(const Process& process, const std::string& identifier);

    Descriptor wakeUp_;
    std::map<Process, Known> known_;
    /// What was reported last of each process number, for notices that come late.
    std::map<pid_t, std::string> reported_;
};

} // namespace processes

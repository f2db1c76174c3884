#pragma once

#include "processes/Application.h"
#include "processes/Descriptor.h"
#include "processes/Process.h"

#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

namespace processes {

/// Finds out which applications have ended, each once and after its process has gone. It knows the
/// applications that it learned of, from a look at those running or from notifications that they post
/// themselves. Looks and notifications may come in any order, and an application that is killed posts none. A
/// caller waits on descriptor() to be woken.
class Terminations {
public:
    Terminations();

    /// Readable while ended() has something to return about an application whose end the system reports; see
    /// endOf(). Negative when the system has no descriptor left.
    [[nodiscard]] int descriptor() const { return wakeUp_.number(); }

    /// Adds those of the running applications that are not known yet.
    void learn(const std::vector<Application>& running);

    /// A notification named the application with that process number, because it has launched or is about to
    /// terminate. Adds it if it is not known yet; its process may have gone already. An empty identifier is
    /// ignored.
    void announced(pid_t pid, const std::string& identifier);

    /// A notification said that an application with that identifier is about to terminate, but not which
    /// process it is.
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
    /// The identifier last reported for each process number, for notifications that arrive late.
    std::map<pid_t, std::string> reported_;
};

} // namespace processes

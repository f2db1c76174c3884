#pragma once

#include "processes/Process.h"

#include <functional>
#include <string>
#include <vector>

namespace processes {

/// The living processes of this user that execute a file that is wanted, by its path. No more is read of any
/// other process than that path, so that a machine with a thousand of them is looked through in a few
/// milliseconds.
[[nodiscard]] std::vector<Process>
processesOfUser(const std::function<bool(const std::string& executable)>& isWanted);

/// True when the process shares this one's folder for temporary files. Applications find each other through
/// it: one that was given another folder belongs to another session and is out of reach.
[[nodiscard]] bool sharesSession(const Process& process);

} // namespace processes

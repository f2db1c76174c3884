#pragma once

#include "processes/Process.h"

#include <vector>

namespace processes {

/// The living processes of this user.
[[nodiscard]] std::vector<Process> processesOfUser();

/// True when the process shares this one's folder for temporary files. Applications find each other through
/// it: one that was given another folder belongs to another session and is out of reach.
[[nodiscard]] bool sharesSession(const Process& process);

} // namespace processes

#pragma once

#include "processes/Process.h"

#include <functional>
#include <string>
#include <vector>

namespace processes {

/// This user's live processes that execute a wanted file, judged by its path. Of other processes only that
/// path is read, so that searching a thousand processes takes a few milliseconds.
[[nodiscard]] std::vector<Process>
processesOfUser(const std::function<bool(const std::string& executable)>& isWanted);

/// True when the process has the same folder for temporary files as this one. Applications find each other
/// through that folder: one with another folder belongs to another session and cannot be reached.
[[nodiscard]] bool sharesSession(const Process& process);

} // namespace processes

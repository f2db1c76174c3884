#pragma once

#include <compare>
#include <filesystem>
#include <optional>
#include <string>
#include <sys/types.h>

namespace processes {

/// One process of this machine. Its start tells it from a later one that bears the same number.
struct Process {
    pid_t pid = 0;
    unsigned long long start = 0; ///< in clock ticks since the machine was started

    // NOLINTNEXTLINE(modernize-use-nullptr): the check takes a comparison with zero for one with a pointer.
    friend auto operator<=>(const Process&, const Process&) = default;
};

/// Where the system tells of the process of that number.
[[nodiscard]] std::filesystem::path folderOf(pid_t pid);

/// The process of that number; none when there is none, or only what was left of one that ended.
[[nodiscard]] std::optional<Process> processOfNumber(pid_t pid);

/// True until it ends, whether or not its parent has taken notice.
[[nodiscard]] bool isAlive(const Process& process);

/// The path of the file that it executes, also when that was replaced since; empty when it may not be told.
[[nodiscard]] std::string executableOf(const Process& process);

/// Asks the process to quit, and does not wait until it has. False when the request could not be delivered.
[[nodiscard]] bool askToQuit(const Process& process);

} // namespace processes

#pragma once

#include "processes/Descriptor.h"

#include <compare>
#include <filesystem>
#include <optional>
#include <string>
#include <sys/types.h>

namespace processes {

/// One process of this machine. Its start tells it from a later one that has the same number.
struct Process {
    pid_t pid = 0;
    unsigned long long start = 0; ///< in clock ticks since the machine was started

    // NOLINTNEXTLINE(modernize-use-nullptr): the check takes a comparison with zero for one with a pointer.
    friend auto operator<=>(const Process&, const Process&) = default;
};

/// The folder in which the system describes the process of that number.
[[nodiscard]] std::filesystem::path folderOf(pid_t pid);

/// The process of that number; none when there is none, or only what was left of one that ended.
[[nodiscard]] std::optional<Process> processOfNumber(pid_t pid);

/// True until it ends, whether or not its parent has taken notice; false also when it cannot be read.
[[nodiscard]] bool isAlive(const Process& process);

/// True once it has ended, whether or not its parent has taken notice; false also when it cannot be read, for
/// want of descriptors for instance.
[[nodiscard]] bool hasEnded(const Process& process);

/// A descriptor that becomes readable when the process ends, and stays so. Not open when it has ended
/// already, when the system has no such descriptors (Linux before 5.3), and when it has none left. Programs
/// that this one executes do not inherit it.
[[nodiscard]] Descriptor endOf(const Process& process);

/// The path of the file that the process of that number executes, also when that was replaced since; empty
/// when the system does not say, as it does not of another user's.
[[nodiscard]] std::string executableOf(pid_t pid);

/// Asks the process to quit, and does not wait until it has. False when the request could not be delivered.
[[nodiscard]] bool askToQuit(const Process& process);

} // namespace processes

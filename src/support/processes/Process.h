#pragma once

#include "processes/Descriptor.h"

#include <compare>
#include <filesystem>
#include <optional>
#include <string>
#include <sys/types.h>

namespace processes {

/// A process on this machine. Its start tells it from a later process that has the same number.
struct Process {
    pid_t pid = 0;
    unsigned long long start = 0; ///< in clock ticks since the machine was started

    // NOLINTNEXTLINE(modernize-use-nullptr): the check takes a comparison with zero for one with a pointer.
    friend auto operator<=>(const Process&, const Process&) = default;
};

/// The folder below /proc of the process with that number.
[[nodiscard]] std::filesystem::path folderOf(pid_t pid);

/// The process with that number; none when there is none or only a zombie is left.
[[nodiscard]] std::optional<Process> processOfNumber(pid_t pid);

/// True until it ends, whether or not its parent has reaped it. Also false when its state cannot be read.
[[nodiscard]] bool isAlive(const Process& process);

/// True once it has ended, whether or not its parent has reaped it. Also false when its state cannot be read,
/// for instance for lack of descriptors.
[[nodiscard]] bool hasEnded(const Process& process);

/// A pidfd, which becomes and stays readable when the process ends. Not open when the process has already
/// ended, when the system has no pidfds (Linux before 5.3), or when no descriptor is left. Programs that this
/// one executes do not inherit it.
[[nodiscard]] Descriptor endOf(const Process& process);

/// The path of the file that the process with that number executes, even if it was replaced since; empty when
/// the system does not reveal it, as for another user's process.
[[nodiscard]] std::string executableOf(pid_t pid);

/// Asks the process to quit, without waiting for it. False when the request could not be delivered.
[[nodiscard]] bool askToQuit(const Process& process);

} // namespace processes

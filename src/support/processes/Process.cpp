#include "processes/Process.h"

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <fcntl.h>
#include <sstream>
#include <string_view>
#include <sys/syscall.h>
#include <variant>

namespace processes {

namespace {

constexpr pid_t initProcess = 1;

constexpr int fieldsBetweenStateAndStart = 19;

/// The errno value of a failed read.
using Failure = int;

/// The contents of the process's file /proc/PID/stat.
std::variant<std::string, Failure> lineOf(pid_t pid) {
    constexpr std::size_t longestLine = 4096;
    std::string line(longestLine, '\0');
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system call is declared that way.
    const Descriptor file(open((folderOf(pid) / "stat").c_str(), O_RDONLY | O_CLOEXEC));
    const ssize_t length = file.isOpen() ? read(file.number(), line.data(), line.size()) : -1;
    if (length < 0)
        return errno;
    line.resize(static_cast<std::size_t>(length));
    return line;
}

// The name in parentheses may itself contain spaces and parentheses; what follows the last one is regular.
std::istringstream fieldsAfterName(const std::string& line) {
    const auto endOfName = line.rfind(')');
    return std::istringstream(endOfName == std::string::npos ? std::string() : line.substr(endOfName + 1));
}

/// The process that the line describes; none when it has ended.
std::optional<Process> processFrom(pid_t pid, const std::string& line) {
    auto fields = fieldsAfterName(line);
    std::string state;
    fields >> state;
    for (int field = 0; field < fieldsBetweenStateAndStart; ++field)
        fields.ignore(static_cast<std::streamsize>(line.size()), ' ');
    Process process{pid, 0};
    if (!(fields >> process.start) || state == "Z" || state == "X")
        return std::nullopt;
    return process;
}

} // namespace

std::filesystem::path folderOf(pid_t pid) {
    return std::filesystem::path("/proc") / std::to_string(pid);
}

std::optional<Process> processOfNumber(pid_t pid) {
    if (pid <= initProcess)
        return std::nullopt;
    const auto line = lineOf(pid);
    const auto* text = std::get_if<std::string>(&line);
    return text == nullptr ? std::nullopt : processFrom(pid, *text);
}

bool isAlive(const Process& process) {
    return processOfNumber(process.pid) == process;
}

bool hasEnded(const Process& process) {
    const auto line = lineOf(process.pid);
    if (const auto* failure = std::get_if<Failure>(&line))
        return *failure == ENOENT || *failure == ESRCH;
    return processFrom(process.pid, std::get<std::string>(line)) != process;
}

Descriptor endOf(const Process& process) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): Debian 12's header for the call lacks C linkage.
    Descriptor end(static_cast<int>(syscall(SYS_pidfd_open, process.pid, 0)));
    // The number may have been reused by another process before the descriptor was opened, but not since.
    return isAlive(process) ? std::move(end) : Descriptor();
}

std::string executableOf(pid_t pid) {
    constexpr std::string_view replaced = " (deleted)";
    std::array<char, PATH_MAX> target = {};
    const ssize_t length = readlink((folderOf(pid) / "exe").c_str(), target.data(), target.size());
    std::string path(target.data(), length < 0 ? 0 : static_cast<std::size_t>(length));
    if (path.ends_with(replaced))
        path.resize(path.size() - replaced.size());
    return path;
}

bool askToQuit(const Process& process) {
    return isAlive(process) && kill(process.pid, SIGTERM) == 0;
}

} // namespace processes

#include "processes/Process.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>
#include <system_error>

namespace processes {

namespace {

constexpr pid_t lastNumberOfTheSystem = 1;

constexpr int fieldsBetweenStateAndStart = 19;

// The name in parentheses may itself hold blanks and parentheses; what follows the last one is regular.
std::istringstream fieldsAfterName(const std::string& line) {
    const auto endOfName = line.rfind(')');
    return std::istringstream(endOfName == std::string::npos ? std::string() : line.substr(endOfName + 1));
}

bool hasEnded(std::string_view state) {
    return state == "Z" || state == "X";
}

} // namespace

std::filesystem::path folderOf(pid_t pid) {
    return std::filesystem::path("/proc") / std::to_string(pid);
}

std::optional<Process> processOfNumber(pid_t pid) {
    if (pid <= lastNumberOfTheSystem)
        return std::nullopt;
    std::ifstream stream(folderOf(pid) / "stat");
    std::string line;
    std::getline(stream, line, '\0');
    auto fields = fieldsAfterName(line);
    std::string state;
    fields >> state;
    for (int field = 0; field < fieldsBetweenStateAndStart; ++field)
        fields.ignore(static_cast<std::streamsize>(line.size()), ' ');
    Process process{pid, 0};
    if (!(fields >> process.start) || hasEnded(state))
        return std::nullopt;
    return process;
}

bool isAlive(const Process& process) {
    return processOfNumber(process.pid) == process;
}

std::string executableOf(const Process& process) {
    constexpr std::string_view replaced = " (deleted)";
    std::error_code failure;
    std::string path = std::filesystem::read_symlink(folderOf(process.pid) / "exe", failure);
    if (path.ends_with(replaced))
        path.resize(path.size() - replaced.size());
    return path;
}

bool askToQuit(const Process& process) {
    return isAlive(process) && kill(process.pid, SIGTERM) == 0;
}

} // namespace processes

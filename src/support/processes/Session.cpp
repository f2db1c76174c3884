#include "processes/Session.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace processes {

namespace {

constexpr std::string_view temporaryFolder = "TEMP";

bool belongsToUser(const std::filesystem::path& process) {
    struct stat status = {};
    return stat(process.c_str(), &status) == 0 && status.st_uid == geteuid();
}

std::string temporaryFolderOf(const std::filesystem::path& process) {
    std::ifstream environment(process / "environ");
    std::string variable;
    while (std::getline(environment, variable, '\0')) {
        const auto equals = variable.find('=');
        if (std::string_view(variable).substr(0, equals) == temporaryFolder && equals != std::string::npos)
            return variable.substr(equals + 1);
    }
    return {};
}

std::string ownTemporaryFolder() {
    const char* folder = std::getenv(temporaryFolder.data());
    return folder == nullptr ? "" : folder;
}

std::optional<pid_t> numberOf(const std::filesystem::path& process) {
    const std::string name = process.filename();
    const char* const endOfName = std::to_address(name.end());
    pid_t pid = 0;
    const auto [end, failure] = std::from_chars(name.data(), endOfName, pid);
    const bool isNumber = failure == std::errc() && end == endOfName;
    return isNumber ? std::optional(pid) : std::nullopt;
}

} // namespace

std::vector<Process> processesOfUser(const std::function<bool(const std::string& executable)>& isWanted) {
    std::vector<Process> found;
    std::error_code failure;
    for (std::filesystem::directory_iterator entry("/proc", failure), end; entry != end;
         entry.increment(failure)) {
        const auto pid = numberOf(entry->path());
        if (!pid || !isWanted(executableOf(*pid)) || !belongsToUser(entry->path()))
            continue;
        if (const auto process = processOfNumber(*pid))
            found.push_back(*process);
    }
    return found;
}

bool sharesSession(const Process& process) {
    return temporaryFolderOf(folderOf(process.pid)) == ownTemporaryFolder();
}

} // namespace processes

#include "files/Leftovers.h"

#include "files/Owner.h"

#include <atomic>
#include <chrono>
#include <string>
#include <system_error>

namespace files {

namespace fs = std::filesystem;

namespace {

// Neither is part of a process's text.
constexpr char beforeNumber = '~';

bool isOld(const fs::path& file) {
    std::error_code failure;
    const auto written = fs::last_write_time(file, failure);
    return !failure && fs::file_time_type::clock::now() - written > std::chrono::hours(24);
}

bool isLeftover(const fs::path& file, std::string_view process) {
    const Life life = lifeOf(process.substr(0, process.find(beforeNumber)));
    return life == Life::ended || (life == Life::unknown && isOld(file));
}

} // namespace

fs::path passingName(const fs::path& folder, std::string_view beginning) {
    static std::atomic<unsigned> number = 0;
    return folder / (std::string(beginning) + thisProcess() + beforeNumber + std::to_string(++number));
}

void removeLeftovers(const fs::path& folder, std::string_view beginning) {
    // What cannot be looked at or removed now stays for the next time.
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        const std::string name = entry->path().filename();
        const bool isPassing = name.starts_with(beginning) && name.find(beforeNumber) != std::string::npos;
        if (!isPassing || !isLeftover(entry->path(), std::string_view(name).substr(beginning.size())))
            continue;
        std::error_code ignored;
        fs::remove_all(entry->path(), ignored);
    }
}

} // namespace files

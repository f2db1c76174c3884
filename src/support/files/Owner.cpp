#include "files/Owner.h"

#include "processes/Process.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <optional>
#include <unistd.h>

namespace files {

namespace {

// Numbers of processes mean something only among those that were started with the same machine, in the same
// container.
std::string realm() {
    std::ifstream stream("/proc/sys/kernel/random/boot_id");
    std::string boot;
    stream >> boot;
    std::error_code failure;
    const std::string container = std::filesystem::read_symlink("/proc/self/ns/pid", failure);
    const auto number = container.find('[');
    return boot + "-" +
           (number == std::string::npos ? "" : container.substr(number + 1, container.size() - number - 2));
}

/// Takes the number before the next hyphen from the text, and the hyphen too.
template <class Number>
std::optional<Number> takeNumber(std::string_view& text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const auto length = static_cast<std::size_t>(end - text.data());
    if (error != std::errc() || length == text.size() || text[length] != '-')
        return std::nullopt;
    text.remove_prefix(length + 1);
    return number;
}

} // namespace

std::string thisProcess() {
    // A save needs it five times, and a forked process is another one.
    thread_local std::string known;
    thread_local pid_t knownFor = 0;
    if (knownFor == getpid())
        return known;
    const auto process = processes::processOfNumber(getpid());
    // A start that cannot be read now leaves the process unknown to others: 0 would be taken for an earlier
    // one.
    const std::string start = process ? std::to_string(process->start) : "unknown";
    std::string text = std::to_string(getpid()) + "-" + start + "-" + realm();
    if (lifeOf(text) == Life::alive) {
        known = text;
        knownFor = getpid();
    }
    return text;
}

Life lifeOf(std::string_view process) {
    const auto pid = takeNumber<pid_t>(process);
    const auto start = pid ? takeNumber<unsigned long long>(process) : std::nullopt;
    if (!start || process != realm())
        return Life::unknown;
    const processes::Process owner{*pid, *start};
    if (processes::hasEnded(owner))
        return Life::ended;
    return processes::isAlive(owner) ? Life::alive : Life::unknown;
}

} // namespace files

#pragma once

#include <filesystem>
#include <string>
#include <utility>

namespace standin {

/// The Sorter's log: a line for each event, on standard output and at the end of a file. Other programs may
/// read both while it runs.
class EventLog {
public:
    /// The log in the file that $QUARRYBOOK_SORTER_LOG names, otherwise in a file below the user's state
    /// folder.
    static EventLog ofUser();

    explicit EventLog(std::filesystem::path file) : file_(std::move(file)) {}

    /// Writes the line at once. When the file cannot be written, the line is on standard output only.
    void write(const std::string& line) const;

private:
    std::filesystem::path file_;
};

} // namespace standin

#pragma once

#include "platform/Value.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace qbsp::appkit {

/// The pane's own record of the embedded applications that were switched on, in the form of launchd's jobs. A
/// file that cannot be read counts as a record of none.
class JobRecord {
public:
    explicit JobRecord(std::filesystem::path file) : file_(std::move(file)) {}

    [[nodiscard]] std::vector<platform::Dictionary> jobs() const;

    /// Records the job of that label as started on demand. False when the record could not be written.
    [[nodiscard]] bool add(const std::string& label);

    /// Forgets the job of that label. False when the record could not be written.
    [[nodiscard]] bool remove(const std::string& label);

private:
    [[nodiscard]] std::vector<platform::Dictionary> jobsExcept(const std::string& label) const;
    [[nodiscard]] bool write(const std::vector<platform::Dictionary>& jobs);

    std::filesystem::path file_;
};

/// The label of a job; empty when it has none.
[[nodiscard]] std::string labelOf(const platform::Dictionary& job);

} // namespace qbsp::appkit

#pragma once

#include "appkit/stores/PropertyLists.h"
#include "platform/URL.h"
#include "platform/Value.h"

#include <string>
#include <vector>

namespace qbsp::appkit {

/// The pane's own record of the embedded applications that were switched on, in the form of launchd's jobs. A
/// file that is no property list counts as a record of none, and is kept under another name when one is
/// written.
class JobRecord {
public:
    explicit JobRecord(platform::URL file) : file_(std::move(file)) {}

    [[nodiscard]] std::vector<platform::Dictionary> jobs() const;

    /// Records the job of that label as started on demand. False when the record could not be written.
    [[nodiscard]] bool add(const std::string& label);

    /// Forgets the job of that label. False when the record could not be written.
    [[nodiscard]] bool remove(const std::string& label);

private:
    [[nodiscard]] std::vector<platform::Dictionary> jobsExcept(const std::string& label) const;
    [[nodiscard]] bool write(const std::vector<platform::Dictionary>& jobs);

    platform::URL file_;
    AppKitPropertyLists propertyLists_;
};

/// The label of a job; empty when it has none.
[[nodiscard]] std::string labelOf(const platform::Dictionary& job);

} // namespace qbsp::appkit

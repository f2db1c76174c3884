#pragma once

#include <string>

namespace qbsp::platform {

/// The process that the pane runs in.
class ProcessInfo {
public:
    virtual ~ProcessInfo() = default;

    /// The name that the process goes by.
    [[nodiscard]] virtual std::string processName() const = 0;
};

} // namespace qbsp::platform

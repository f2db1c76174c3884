#pragma once

#include <string_view>

namespace qbsp::platform {

/// The platform's log.
class Log {
public:
    virtual ~Log() = default;

    /// Writes one finished line.
    virtual void log(std::string_view line) = 0;
};

} // namespace qbsp::platform

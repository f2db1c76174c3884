#pragma once

#include <compare>
#include <string_view>

namespace qbsp::platform {

/// How the platform compares text.
class StringComparison {
public:
    virtual ~StringComparison() = default;

    /// Compares two UTF-8 texts by their characters' lower-case forms; accents count.
    [[nodiscard]] virtual std::weak_ordering caseInsensitiveCompare(std::string_view receiver,
                                                                    std::string_view other) const = 0;

    /// True when the two differ in case at most.
    [[nodiscard]] bool equalIgnoringCase(std::string_view receiver, std::string_view other) const {
        return caseInsensitiveCompare(receiver, other) == std::weak_ordering::equivalent;
    }
};

} // namespace qbsp::platform

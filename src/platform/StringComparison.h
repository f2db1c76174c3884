#pragma once

#include <compare>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace qbsp::platform {

/// How the platform compares text.
class StringComparison {
public:
    virtual ~StringComparison() = default;

    /// Compares two UTF-8 texts by their characters' lower-case forms; accents count.
    [[nodiscard]] virtual std::weak_ordering caseInsensitiveCompare(std::string_view receiver,
                                                                    std::string_view other) const = 0;

    /// The places of the texts in the order of caseInsensitiveCompare(); of equal ones, the earlier first. A
    /// platform overrides this where it can do better than to compare two at a time.
    [[nodiscard]] virtual std::vector<std::size_t> order(std::span<const std::string_view> texts) const;

    /// True when the two differ in case at most.
    [[nodiscard]] bool equalIgnoringCase(std::string_view receiver, std::string_view other) const {
        return caseInsensitiveCompare(receiver, other) == std::weak_ordering::equivalent;
    }
};

} // namespace qbsp::platform

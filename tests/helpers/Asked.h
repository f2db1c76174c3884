#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qbsp {

/// The platform calls that an operation made, for checks on them.
class Asked {
public:
    explicit Asked(std::vector<std::string> operations) : operations_(std::move(operations)) {}

    [[nodiscard]] const std::vector<std::string>& operations() const { return operations_; }

    /// How many calls begin like that.
    [[nodiscard]] std::ptrdiff_t count(std::string_view beginning) const {
        return std::ranges::count_if(operations_,
                                     [&](const std::string& line) { return line.starts_with(beginning); });
    }

    [[nodiscard]] bool has(std::string_view beginning) const { return count(beginning) != 0; }

    /// How many notifications of that name were posted.
    [[nodiscard]] std::ptrdiff_t posts(std::string_view name) const {
        return count(std::string(post) + "(\"" + std::string(name));
    }

    /// True when the calls that begin like these came in this order.
    [[nodiscard]] bool areInOrder(const std::vector<std::string_view>& beginnings) const {
        std::size_t reached = 0;
        for (const std::string& line : operations_)
            for (std::size_t i = 0; i < beginnings.size(); ++i)
                if (line.starts_with(beginnings[i])) {
                    if (i < reached)
                        return false;
                    reached = i;
                }
        return true;
    }

    static constexpr std::string_view post =
        "NSDistributedNotificationCenter postNotificationName:object:userInfo:options:";

private:
    std::vector<std::string> operations_;
};

} // namespace qbsp

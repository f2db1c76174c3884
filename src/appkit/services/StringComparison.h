#pragma once

#include "platform/StringComparison.h"

namespace qbsp::appkit {

class AppKitStringComparison final : public platform::StringComparison {
public:
    [[nodiscard]] std::weak_ordering caseInsensitiveCompare(std::string_view receiver,
                                                            std::string_view other) const override;
    [[nodiscard]] std::vector<std::size_t> order(std::span<const std::string_view> texts) const override;
};

} // namespace qbsp::appkit

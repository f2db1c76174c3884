#pragma once

#include "platform/StringComparison.h"

namespace qbsp::appkit {

class AppKitStringComparison final : public platform::StringComparison {
public:
    [[nodiscard]] std::weak_ordering caseInsensitiveCompare(std::string_view receiver,
                                                            std::string_view other) const override;
};

} // namespace qbsp::appkit

#pragma once

#include "platform/ProcessInfo.h"

namespace qbsp::appkit {

class AppKitProcessInfo final : public platform::ProcessInfo {
public:
    [[nodiscard]] std::string processName() const override;
};

} // namespace qbsp::appkit

#pragma once

#include "platform/Alert.h"

namespace qbsp::appkit {

class AppKitAlerts final : public platform::Alerts {
public:
    [[nodiscard]] std::unique_ptr<platform::Alert> makeAlert() override;
};

} // namespace qbsp::appkit

#pragma once

#include "platform/Host.h"

namespace qbsp::appkit {

/// The application object of the process.
class AppKitHost final : public platform::Host {
public:
    [[nodiscard]] bool isSandboxed() const override;
    [[nodiscard]] bool isPro() const override;
};

} // namespace qbsp::appkit

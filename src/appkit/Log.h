#pragma once

#include "platform/Log.h"

namespace qbsp::appkit {

class AppKitLog final : public platform::Log {
public:
    void log(std::string_view line) override;
};

} // namespace qbsp::appkit

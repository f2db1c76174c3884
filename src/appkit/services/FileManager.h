#pragma once

#include "platform/FileManager.h"

namespace qbsp::appkit {

class AppKitFileManager final : public platform::FileManager {
public:
    [[nodiscard]] std::optional<platform::URL>
    containerURLForSecurityApplicationGroupIdentifier(platform::ApplicationGroup group) override;

    [[nodiscard]] bool fileExistsAtPath(const std::string& path) const override;

    [[nodiscard]] std::optional<std::string>
    createDirectoryAtURL(const platform::URL& url, platform::IntermediateDirectories intermediates) override;
};

} // namespace qbsp::appkit

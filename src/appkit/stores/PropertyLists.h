#pragma once

#include "platform/PropertyLists.h"

namespace qbsp::appkit {

/// Property lists of every format are read; XML is written.
class AppKitPropertyLists final : public platform::PropertyLists {
public:
    [[nodiscard]] std::optional<platform::Dictionary>
    dictionaryWithContentsOfFile(const std::optional<std::string>& path) const override;

    [[nodiscard]] bool writeToURL(const platform::Dictionary& dictionary,
                                  const std::optional<platform::URL>& url,
                                  platform::Atomically atomically) override;
};

} // namespace qbsp::appkit

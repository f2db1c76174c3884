#pragma once

#include "platform/UserDefaults.h"

namespace qbsp::appkit {

/// The standard user defaults of this process.
class AppKitUserDefaults final : public platform::UserDefaults {
public:
    [[nodiscard]] platform::Value objectForKey(platform::DefaultsKey key) const override;
    void setBoolForKey(bool value, platform::DefaultsKey key) override;
    void setObjectForKey(const platform::Value& value, platform::DefaultsKey key) override;
    [[nodiscard]] bool synchronize() override;
};

} // namespace qbsp::appkit

#pragma once

#include "platform/Alert.h"
#include "platform/OpenPanel.h"

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

/// AppKit's open panels. A panel that is shown keeps the owner of the services alive.
class AppKitOpenPanels final : public platform::OpenPanels {
public:
    /// The owner is not retained, because it owns this object.
    explicit AppKitOpenPanels(id owner) : owner_(owner) {}

    [[nodiscard]] std::shared_ptr<platform::OpenPanel> openPanel() override;

private:
    id owner_;
};

class AppKitAlerts final : public platform::Alerts {
public:
    [[nodiscard]] std::unique_ptr<platform::Alert> makeAlert() override;
};

} // namespace qbsp::appkit

#pragma once

#include "platform/Alert.h"
#include "platform/OpenPanel.h"

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

/// AppKit's open panels. The object that owns the services stays alive while a panel is shown.
class AppKitOpenPanels final : public platform::OpenPanels {
public:
    /// The owner holds this, and is therefore not retained by it.
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

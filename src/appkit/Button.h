#pragma once

#include "appkit/Retained.h"
#include "platform/Controls.h"

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

/// A push button or a check box.
class AppKitButton final : public platform::Button {
public:
    explicit AppKitButton(NSButton* button) : button_(button) {}

    void setHidden(bool hidden) override;
    void setTitle(std::string_view title) override;
    void setEnabled(bool enabled) override;
    void setState(platform::ButtonState state) override;
    [[nodiscard]] platform::ButtonState state() const override;

private:
    Retained<NSButton*> button_;
};

} // namespace qbsp::appkit

#pragma once

#include "appkit/Retained.h"
#include "platform/Controls.h"

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

class AppKitTextField final : public platform::TextField {
public:
    explicit AppKitTextField(NSTextField* field) : field_(field) {}

    void setHidden(bool hidden) override;
    void setStringValue(std::string_view text) override;

private:
    Retained<NSTextField*> field_;
};

} // namespace qbsp::appkit

#pragma once

#include "platform/PreferencePaneBase.h"

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

/// Refers to an AppKit window without retaining it.
class AppKitWindow final : public platform::Window {
public:
    explicit AppKitWindow(NSWindow* window) : window_(window) {}

    [[nodiscard]] NSWindow* nsWindow() const { return window_; }

private:
    NSWindow* window_;
};

} // namespace qbsp::appkit

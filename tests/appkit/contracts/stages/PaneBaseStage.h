#pragma once

#include "platform/PreferencePaneBase.h"

#include <memory>
#include <string>
#include <vector>

namespace qbsp::contracts {

/// What a pane inherits, and the platform's side of it.
class PaneBaseStage {
public:
    static std::unique_ptr<PaneBaseStage> simulated();
    static std::unique_ptr<PaneBaseStage> appKit();

    virtual ~PaneBaseStage() = default;

    [[nodiscard]] virtual platform::PreferencePaneBase& base() = 0;

    virtual void letPlatformRefuse() = 0;

    /// The messages that reached the platform's class, by selector.
    [[nodiscard]] virtual std::vector<std::string> messages() = 0;

    /// Puts the main view into a window, or takes it out again; does nothing where there are no windows.
    virtual void showMainView(bool shown) = 0;
};

} // namespace qbsp::contracts

#pragma once

#include "appkit/PreferencePane.h"
#include "platform/PreferencePaneBase.h"

#include <optional>

namespace qbsp::appkit {

/// A window of AppKit, for as long as somebody else keeps it.
class AppKitWindow final : public platform::Window {
  public:
    explicit AppKitWindow(NSWindow* window) : window_(window) {}

    [[nodiscard]] NSWindow* nsWindow() const { return window_; }

  private:
    NSWindow* window_;
};

/// The NSPreferencePane that the principal object derives from. The object owns this.
class AppKitPreferencePaneBase final : public platform::PreferencePaneBase {
  public:
    AppKitPreferencePaneBase(::QBSPPreferencePane* object, NSBundle* bundle)
        : object_(object), bundle_(bundle) {}

    [[nodiscard]] bool initWithBundle() override;
    void mainViewDidLoad() override;
    void willSelect() override;
    void willUnselect() override;
    [[nodiscard]] platform::Window* mainViewWindow() override;

  private:
    ::QBSPPreferencePane* object_;
    NSBundle* bundle_;
    std::optional<AppKitWindow> window_;
};

} // namespace qbsp::appkit

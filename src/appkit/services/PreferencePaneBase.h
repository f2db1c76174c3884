#pragma once

#include "appkit/services/Window.h"
#include "platform/PreferencePaneBase.h"

#import <AppKit/AppKit.h>
#import <PreferencePanes/NSPreferencePane.h>

#include <optional>

/// What the principal object's base class does for the messages that the pane overrides.
@protocol QBSPInheritedMessages
- (id)inheritedInitWithBundle:(NSBundle*)bundle;
- (void)inheritedMainViewDidLoad;
- (void)inheritedWillSelect;
- (void)inheritedWillUnselect;
@end

namespace qbsp::appkit {

/// The object of the plug-in's principal class.
using PrincipalObject = NSPreferencePane<QBSPInheritedMessages>*;

/// The NSPreferencePane that the principal object derives from. The object owns this.
class AppKitPreferencePaneBase final : public platform::PreferencePaneBase {
  public:
    AppKitPreferencePaneBase(PrincipalObject object, NSBundle* bundle) : object_(object), bundle_(bundle) {}

    [[nodiscard]] bool initWithBundle() override;
    void mainViewDidLoad() override;
    void willSelect() override;
    void willUnselect() override;
    [[nodiscard]] platform::Window* mainViewWindow() override;

  private:
    PrincipalObject object_;
    NSBundle* bundle_;
    std::optional<AppKitWindow> window_;
};

} // namespace qbsp::appkit

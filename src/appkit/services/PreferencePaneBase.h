#pragma once

#include "appkit/services/Window.h"
#include "platform/PreferencePaneBase.h"

#import <AppKit/AppKit.h>
#import <PreferencePanes/NSPreferencePane.h>

#include <optional>

/// The base class's implementations of the messages that the principal class overrides.
@protocol QBSPInheritedMessages
- (id)inheritedInitWithBundle:(NSBundle*)bundle;
- (void)inheritedMainViewDidLoad;
- (void)inheritedWillSelect;
- (void)inheritedWillUnselect;
@end

namespace qbsp::appkit {

/// An instance of the plug-in's principal class.
using PrincipalObject = NSPreferencePane<QBSPInheritedMessages>*;

/// The NSPreferencePane part of the principal object, which owns this.
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

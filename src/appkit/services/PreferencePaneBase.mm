#include "appkit/services/PreferencePaneBase.h"

namespace qbsp::appkit {

bool AppKitPreferencePaneBase::initWithBundle() {
    object_ = [object_ inheritedInitWithBundle:bundle_];
    return object_ != nil;
}

void AppKitPreferencePaneBase::mainViewDidLoad() {
    [object_ inheritedMainViewDidLoad];
}

void AppKitPreferencePaneBase::willSelect() {
    [object_ inheritedWillSelect];
}

void AppKitPreferencePaneBase::willUnselect() {
    [object_ inheritedWillUnselect];
}

platform::Window* AppKitPreferencePaneBase::mainViewWindow() {
    NSWindow* window = [[object_ mainView] window];
    return window == nil ? nullptr : &window_.emplace(window);
}

} // namespace qbsp::appkit

#include "appkit/Button.h"

#include "appkit/Strings.h"

namespace qbsp::appkit {

void AppKitButton::setHidden(bool hidden) {
    [button_.get() setHidden:hidden ? YES : NO];
}

void AppKitButton::setTitle(std::string_view title) {
    [button_.get() setTitle:nsString(title)];
}

void AppKitButton::setEnabled(bool enabled) {
    [button_.get() setEnabled:enabled ? YES : NO];
}

void AppKitButton::setState(platform::ButtonState state) {
    [button_.get() setState:static_cast<NSInteger>(state)];
}

platform::ButtonState AppKitButton::state() const {
    return static_cast<platform::ButtonState>([button_.get() state]);
}

} // namespace qbsp::appkit

#include "appkit/TextField.h"

#include "appkit/Strings.h"

namespace qbsp::appkit {

void AppKitTextField::setHidden(bool hidden) {
    [field_.get() setHidden:hidden ? YES : NO];
}

void AppKitTextField::setStringValue(std::string_view text) {
    [field_.get() setStringValue:nsString(text)];
}

} // namespace qbsp::appkit

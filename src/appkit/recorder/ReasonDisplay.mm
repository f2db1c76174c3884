#include "appkit/recorder/ReasonDisplay.h"

namespace qbsp::recorder {

ReasonDisplay::~ReasonDisplay() {
    hide();
}

void ReasonDisplay::setField(NSTextField* field) {
    hide();
    field_ = appkit::Retained<NSTextField*>(field);
}

void ReasonDisplay::show(NSString* sentence) {
    shown_ = appkit::Retained<NSString*>(sentence);
    [field_.get() setStringValue:sentence];
}

void ReasonDisplay::hide() {
    if (shown_.get() != nil && [[field_.get() stringValue] isEqualToString:shown_.get()])
        [field_.get() setStringValue:@""];
    shown_ = {};
}

} // namespace qbsp::recorder

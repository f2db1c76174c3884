#include "appkit/recorder/ReasonDisplay.h"

namespace qbsp::recorder {

using appkit::Retained;

// The recorder is gone, and leaves no reason behind.
ReasonDisplay::~ReasonDisplay() {
    [field_.get() setStringValue:@""];
}

void ReasonDisplay::setField(NSTextField* field) {
    [field_.get() setStringValue:@""];
    field_ = Retained<NSTextField*>(field);
    [field setStringValue:shown_.get() == nil ? @"" : shown_.get()];
}

void ReasonDisplay::setRefusal(NSString* sentence) {
    refusal_ = Retained<NSString*>(sentence);
    show();
}

void ReasonDisplay::setUseElsewhere(NSString* sentence) {
    useElsewhere_ = Retained<NSString*>(sentence);
    show();
}

void ReasonDisplay::show() {
    NSString* sentence = refusal_.get() == nil ? useElsewhere_.get() : refusal_.get();
    if (sentence == shown_.get() || [sentence isEqualToString:shown_.get()])
        return;
    if (shown_.get() == nil)
        usualToolTip_ = Retained<NSString*>([recorder_ toolTip]);
    shown_ = Retained<NSString*>(sentence);
    [field_.get() setStringValue:sentence == nil ? @"" : sentence];
    [recorder_ setToolTip:sentence == nil ? usualToolTip_.get() : sentence];
    NSAccessibilityPostNotification(recorder_, NSAccessibilityValueChangedNotification);
}

} // namespace qbsp::recorder

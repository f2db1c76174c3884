#include "appkit/recorder/ViewListener.h"

#include "appkit/recorder/RecorderTexts.h"

namespace qbsp::recorder {

bool ViewListener::isTaken(const KeyCombo& combo) {
    NSString* reason = nil;
    const BOOL taken = [delegate_ recorderView:view_
                                     isKeyCode:static_cast<NSInteger>(combo.code)
                                 andFlagsTaken:static_cast<NSUInteger>(combo.flags)
                                        reason:&reason];
    delegatesReason_ = appkit::Retained<NSString*>(reason);
    return taken;
}

void ViewListener::refused(Refusal refusal) {
    reasons_.show(refusalSentence(refusal, delegatesReason_.get()));
    NSBeep();
}

void ViewListener::refusalPassed() {
    reasons_.hide();
}

void ViewListener::comboChanged(const KeyCombo& combo) {
    [delegate_ recorderView:view_
          keyComboDidChange:static_cast<NSInteger>(combo.code)
                      flags:static_cast<NSUInteger>(combo.flags)];
}

void ViewListener::lookChanged() {
    [static_cast<NSView*>(static_cast<id>(view_)) setNeedsDisplay:YES];
    NSAccessibilityPostNotification(view_, NSAccessibilityValueChangedNotification);
}

} // namespace qbsp::recorder

#include "appkit/recorder/ViewListener.h"

#include "appkit/recorder/RecorderTexts.h"

NSString* const QBSPRecorderDidChangeNotification = @"QBSPRecorderDidChangeNotification";

namespace qbsp::recorder {

ViewListener::ViewListener(QBSPRecorderView* view)
    : view_(view), reasons_(static_cast<NSView*>(static_cast<id>(view))) {}

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
    reasons_.setRefusal(refusalSentence(refusal, delegatesReason_.get()));
    NSBeep();
}

void ViewListener::refusalPassed() {
    reasons_.setRefusal(nil);
}

void ViewListener::usedElsewhere(bool isUsed) {
    reasons_.setUseElsewhere(isUsed ? refusalSentence(Refusal::taken, delegatesReason_.get()) : nil);
}

void ViewListener::comboChanged(const KeyCombo& combo) {
    [delegate_ recorderView:view_
          keyComboDidChange:static_cast<NSInteger>(combo.code)
                      flags:static_cast<NSUInteger>(combo.flags)];
    [[NSNotificationCenter defaultCenter] postNotificationName:QBSPRecorderDidChangeNotification
                                                        object:view_];
}

void ViewListener::lookChanged() {
    [static_cast<NSView*>(static_cast<id>(view_)) setNeedsDisplay:YES];
    NSAccessibilityPostNotification(view_, NSAccessibilityValueChangedNotification);
}

} // namespace qbsp::recorder

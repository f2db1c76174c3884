#pragma once

#include "appkit/recorder/ReasonDisplay.h"
#include "appkit/recorder/RecorderLogic.h"

#import "appkit/recorder/RecorderViewDelegate.h"

namespace qbsp::recorder {

/// Carries what the logic asks and tells to the view's delegate, to its reason field and to the screen.
class ViewListener : public RecorderListener {
  public:
    /// The view must outlive the listener.
    explicit ViewListener(QBSPRecorderView* view) : view_(view) {}

    /// Not retained; nil takes every combination, and hears of none.
    void setDelegate(id<QBSPRecorderViewDelegate> delegate) { delegate_ = delegate; }

    [[nodiscard]] id<QBSPRecorderViewDelegate> delegate() const { return delegate_; }

    [[nodiscard]] ReasonDisplay& reasons() { return reasons_; }

    bool isTaken(const KeyCombo& combo) override;
    void refused(Refusal refusal) override;
    void refusalPassed() override;
    void comboChanged(const KeyCombo& combo) override;
    void lookChanged() override;

  private:
    QBSPRecorderView* view_;
    id<QBSPRecorderViewDelegate> delegate_ = nil;
    appkit::Retained<NSString*> delegatesReason_;
    ReasonDisplay reasons_;
};

} // namespace qbsp::recorder

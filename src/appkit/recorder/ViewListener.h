#pragma once

#include "appkit/recorder/Keyboard.h"
#include "appkit/recorder/ReasonDisplay.h"
#include "appkit/recorder/RecorderLogic.h"

#import "appkit/recorder/RecorderViewDelegate.h"

namespace qbsp::recorder {

/// Forwards the logic's calls to the view's delegate, its reason field and the screen.
class ViewListener : public RecorderListener, public LayoutListener {
public:
    /// The view must outlive the listener.
    explicit ViewListener(QBSPRecorderView* view);

    /// Not retained. With nil, every combination is accepted and none is reported.
    void setDelegate(id<QBSPRecorderViewDelegate> delegate) { delegate_ = delegate; }

    [[nodiscard]] id<QBSPRecorderViewDelegate> delegate() const { return delegate_; }

    [[nodiscard]] ReasonDisplay& reasons() { return reasons_; }

    bool isTaken(const KeyCombo& combo) override;
    void refused(Refusal refusal) override;
    void refusalPassed() override;
    void usedElsewhere(bool isUsed) override;
    void comboChanged(const KeyCombo& combo) override;
    void lookChanged() override;

    void layoutChanged() override { lookChanged(); }

private:
    QBSPRecorderView* view_;
    id<QBSPRecorderViewDelegate> delegate_ = nil;
    appkit::Retained<NSString*> delegatesReason_;
    ReasonDisplay reasons_;
};

} // namespace qbsp::recorder

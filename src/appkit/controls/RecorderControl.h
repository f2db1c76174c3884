#pragma once

#include "appkit/bridge/Retained.h"
#include "appkit/recorder/QBSPRecorderView.h"
#include "platform/Controls.h"

@class QBSPRecorderListener;

namespace qbsp::appkit {

/// Adapts a recorder of the pane's view. Forwards the view's delegate messages until it is destroyed.
class AppKitRecorderControl final : public platform::RecorderControl {
public:
    explicit AppKitRecorderControl(QBSPRecorderView* view);
    ~AppKitRecorderControl() override;
    AppKitRecorderControl(const AppKitRecorderControl&) = delete;
    AppKitRecorderControl& operator=(const AppKitRecorderControl&) = delete;

    [[nodiscard]] bool isFor(id view) const { return view == view_.get(); }

    void setHidden(bool hidden) override;
    void setKeyCombo(const platform::KeyCombo& keyCombo) override;
    void setDelegate(platform::RecorderDelegate& delegate) override;

private:
    Retained<QBSPRecorderView*> view_;
    Retained<QBSPRecorderListener*> listener_;
};

} // namespace qbsp::appkit

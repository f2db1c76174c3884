#pragma once

#include "appkit/controls/Controls.h"
#include "appkit/controls/RecorderControl.h"
#include "appkit/view/QBSPPaneView.h"
#include "pane/PaneControls.h"

namespace qbsp::appkit {

/// The controls of the pane's view, as the pane knows them.
class ViewControls {
public:
    explicit ViewControls(QBSPPaneView* view);

    /// The controls, which live as long as this.
    [[nodiscard]] PaneControls outlets();

    /// The adapter of that recorder of the view; null for any other object.
    [[nodiscard]] AppKitRecorderControl* recorderFor(id recorder);

    [[nodiscard]] AppKitTableView& hideAppsTable() { return hideAppsTable_; }

private:
    AppKitRecorderControl clipHotKeyRecorder_;
    AppKitRecorderControl noteHotKeyRecorder_;
    AppKitButton showAtLoginCheckbox_;
    AppKitButton toggleLaunchButton_;
    AppKitButton visibilityButton_;
    AppKitTextField availabilityLabel_;
    AppKitTextField visibilityLabel_;
    AppKitTextField descriptionLabel_;
    AppKitTextField takeNoteLabel_;
    AppKitTextField copySelectionLabel_;
    AppKitTextField attentionLabel_;
    AppKitButton resetFullscreenSettingsButton_;
    AppKitTableView hideAppsTable_;
    AppKitTextField hideAppLabel_;
};

} // namespace qbsp::appkit

#include "appkit/controls/ViewControls.h"

namespace qbsp::appkit {

using platform::Outlet;

ViewControls::ViewControls(QBSPPaneView* view)
    : clipHotKeyRecorder_([view clipHotKeyRecorder]), noteHotKeyRecorder_([view noteHotKeyRecorder]),
      showAtLoginCheckbox_([view showAtLoginCheckbox]), toggleLaunchButton_([view toggleLaunchButton]),
      visibilityButton_([view visibilityButton]), availabilityLabel_([view availabilityLabel]),
      visibilityLabel_([view visibilityLabel]), descriptionLabel_([view descriptionLabel]),
      takeNoteLabel_([view takeNoteLabel]), copySelectionLabel_([view copySelectionLabel]),
      attentionLabel_([view attentionLabel]),
      resetFullscreenSettingsButton_([view resetFullscreenSettingsButton]),
      hideAppsTable_([view hideAppsTable]), hideAppLabel_([view hideAppLabel]) {}

PaneControls ViewControls::outlets() {
    return {
        .clipHotKeyRecorder = Outlet<platform::RecorderControl>(&clipHotKeyRecorder_),
        .noteHotKeyRecorder = Outlet<platform::RecorderControl>(&noteHotKeyRecorder_),
        .showAtLoginCheckbox = Outlet<platform::Button>(&showAtLoginCheckbox_),
        .toggleLaunchButton = Outlet<platform::Button>(&toggleLaunchButton_),
        .visibilityButton = Outlet<platform::Button>(&visibilityButton_),
        .availabilityLabel = Outlet<platform::TextField>(&availabilityLabel_),
        .visibilityLabel = Outlet<platform::TextField>(&visibilityLabel_),
        .descriptionLabel = Outlet<platform::TextField>(&descriptionLabel_),
        .takeNoteLabel = Outlet<platform::TextField>(&takeNoteLabel_),
        .copySelectionLabel = Outlet<platform::TextField>(&copySelectionLabel_),
        .attentionLabel = Outlet<platform::TextField>(&attentionLabel_),
        .resetFullscreenSettingsButton = Outlet<platform::Button>(&resetFullscreenSettingsButton_),
        .hideAppsTable = Outlet<platform::TableView>(&hideAppsTable_),
        .hideAppLabel = Outlet<platform::TextField>(&hideAppLabel_),
    };
}

AppKitRecorderControl* ViewControls::recorderFor(id recorder) {
    for (AppKitRecorderControl* each : {&clipHotKeyRecorder_, &noteHotKeyRecorder_})
        if (each->isFor(recorder))
            return each;
    return nullptr;
}

} // namespace qbsp::appkit

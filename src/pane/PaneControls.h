#pragma once

#include "platform/Controls.h"
#include "platform/NullObjects.h"
#include "platform/Outlet.h"

namespace qbsp {

/// The controls of the pane's view, which owns them. Whoever loads the view connects them; one that is left
/// unconnected is passed over.
struct PaneControls {
    platform::Outlet<platform::RecorderControl> clipHotKeyRecorder;
    platform::Outlet<platform::RecorderControl> noteHotKeyRecorder;
    platform::Outlet<platform::Button> showAtLoginCheckbox;
    platform::Outlet<platform::Button> toggleLaunchButton;
    platform::Outlet<platform::Button> visibilityButton;
    platform::Outlet<platform::TextField> availabilityLabel;
    platform::Outlet<platform::TextField> visibilityLabel;
    platform::Outlet<platform::TextField> descriptionLabel;
    platform::Outlet<platform::TextField> takeNoteLabel;
    platform::Outlet<platform::TextField> copySelectionLabel;
    platform::Outlet<platform::TextField> attentionLabel;
    platform::Outlet<platform::Button> resetFullscreenSettingsButton;
    platform::Outlet<platform::TableView> hideAppsTable;
    platform::Outlet<platform::TextField> hideAppLabel;
};

} // namespace qbsp

#pragma once

#include "pane/QBSPPreferencePane.h"
#include "simulated/SimulatedControls.h"
#include "simulated/World.h"

namespace qbsp::simulated {

/// The names of the pane's control fields, in the order of its fields.
[[nodiscard]] const std::vector<std::string>& controlFields();

/// The pane's view, with a control for each field.
class SimulatedView {
public:
    /// Makes the controls as the world lists columns, and connects all that it does not name as disconnected.
    /// The view must outlive the pane's use of its controls.
    SimulatedView(QBSPPreferencePane& pane, const World& world, Transcript& transcript);

    /// The check box that a user can set by that field's name; null for any other and an unconnected one.
    [[nodiscard]] SimulatedButton* checkBox(std::string_view field);

    /// What each connected control holds, by field in the order of the pane's fields.
    [[nodiscard]] std::vector<std::pair<std::string, platform::Dictionary>> contents() const;

private:
    /// Calls visit(control, outlet) for each control and its field, in the order of the pane's fields.
    template <class View, class Controls, class Visit>
    static void forEachControl(View& view, Controls& controls, Visit visit);

    const QBSPPreferencePane& pane_;

    SimulatedRecorder clipHotKeyRecorder_;
    SimulatedRecorder noteHotKeyRecorder_;
    SimulatedButton showAtLoginCheckbox_;
    SimulatedButton toggleLaunchButton_;
    SimulatedButton visibilityButton_;
    SimulatedTextField availabilityLabel_;
    SimulatedTextField visibilityLabel_;
    SimulatedTextField descriptionLabel_;
    SimulatedTextField takeNoteLabel_;
    SimulatedTextField copySelectionLabel_;
    SimulatedTextField attentionLabel_;
    SimulatedButton resetFullscreenSettingsButton_;
    SimulatedTable hideAppsTable_;
    SimulatedTextField hideAppLabel_;
};

} // namespace qbsp::simulated

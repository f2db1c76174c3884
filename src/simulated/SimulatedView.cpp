#include "simulated/SimulatedView.h"

namespace qbsp::simulated {

const std::vector<std::string>& controlFields() {
    static const std::vector<std::string> fields = {
        "clipHotKeyRecorder", "noteHotKeyRecorder", "showAtLoginCheckbox", "toggleLaunchButton",
        "visibilityButton",   "availabilityLabel",  "visibilityLabel",     "descriptionLabel",
        "takeNoteLabel",      "copySelectionLabel", "attentionLabel",      "resetFullscreenSettingsButton",
        "hideAppsTable",      "hideAppLabel"};
    return fields;
}

SimulatedView::SimulatedView(QBSPPreferencePane& pane, const World& world, Transcript& transcript)
    : pane_(pane), clipHotKeyRecorder_("clipHotKeyRecorder", transcript),
      noteHotKeyRecorder_("noteHotKeyRecorder", transcript),
      showAtLoginCheckbox_("showAtLoginCheckbox", transcript),
      toggleLaunchButton_("toggleLaunchButton", transcript),
      visibilityButton_("visibilityButton", transcript), availabilityLabel_("availabilityLabel", transcript),
      visibilityLabel_("visibilityLabel", transcript), descriptionLabel_("descriptionLabel", transcript),
      takeNoteLabel_("takeNoteLabel", transcript), copySelectionLabel_("copySelectionLabel", transcript),
      attentionLabel_("attentionLabel", transcript),
      resetFullscreenSettingsButton_("resetFullscreenSettingsButton", transcript),
      hideAppsTable_("hideAppsTable", transcript, world.columns,
                     [this] { return pane_.numberOfRowsInTableView(hideAppsTable_); }),
      hideAppLabel_("hideAppLabel", transcript) {
    forEachControl(*this, pane.controls, [&](auto& control, auto& outlet) {
        if (!world.disconnected.contains(control.field()))
            outlet = std::remove_reference_t<decltype(outlet)>(&control);
    });
}

template <class View, class Controls, class Visit>
void SimulatedView::forEachControl(View& view, Controls& controls, Visit visit) {
    visit(view.clipHotKeyRecorder_, controls.clipHotKeyRecorder);
    visit(view.noteHotKeyRecorder_, controls.noteHotKeyRecorder);
    visit(view.showAtLoginCheckbox_, controls.showAtLoginCheckbox);
    visit(view.toggleLaunchButton_, controls.toggleLaunchButton);
    visit(view.visibilityButton_, controls.visibilityButton);
    visit(view.availabilityLabel_, controls.availabilityLabel);
    visit(view.visibilityLabel_, controls.visibilityLabel);
    visit(view.descriptionLabel_, controls.descriptionLabel);
    visit(view.takeNoteLabel_, controls.takeNoteLabel);
    visit(view.copySelectionLabel_, controls.copySelectionLabel);
    visit(view.attentionLabel_, controls.attentionLabel);
    visit(view.resetFullscreenSettingsButton_, controls.resetFullscreenSettingsButton);
    visit(view.hideAppsTable_, controls.hideAppsTable);
    visit(view.hideAppLabel_, controls.hideAppLabel);
}

SimulatedButton* SimulatedView::checkBox(std::string_view field) {
    if (field == "showAtLoginCheckbox" && pane_.controls.showAtLoginCheckbox.isConnected())
        return &showAtLoginCheckbox_;
    if (field == "visibilityButton" && pane_.controls.visibilityButton.isConnected())
        return &visibilityButton_;
    return nullptr;
}

std::vector<std::pair<std::string, platform::Dictionary>> SimulatedView::contents() const {
    std::vector<std::pair<std::string, platform::Dictionary>> all;
    forEachControl(*this, pane_.controls, [&](const auto& control, const auto& outlet) {
        if (outlet.isConnected())
            all.emplace_back(control.field(), control.contents());
    });
    return all;
}

} // namespace qbsp::simulated

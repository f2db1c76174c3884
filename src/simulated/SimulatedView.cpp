#include "simulated/SimulatedView.h"

namespace qbsp::simulated {

const std::vector<std::string>& controlFields() {
    static const std::vector<std::string> fields = [] {
        std::vector<std::string> names;
        forEachControl([&names](const char* field) { names.emplace_back(field); });
        return names;
    }();
    return fields;
}

SimulatedView::SimulatedView(QBSPPreferencePane& pane, const World& world, Transcript& transcript)
    : pane_(pane), world_(world), transcript_(transcript) {
    forEachControl(
        [this]<class Control>(const char* field, std::optional<SimulatedControl<Control>>& control,
                              platform::Outlet<Control>& outlet) {
            make(control, field);
            if (!world_.disconnected.contains(field))
                outlet = platform::Outlet<Control>(&*control);
        },
        controls_, pane.controls);
}

template <class Control>
void SimulatedView::make(std::optional<Control>& control, const char* field) {
    control.emplace(field, transcript_);
}

void SimulatedView::make(std::optional<SimulatedTable>& table, const char* field) {
    table.emplace(field, transcript_, world_.columns,
                  [this] { return pane_.numberOfRowsInTableView(*controls_.hideAppsTable); });
}

SimulatedButton* SimulatedView::checkBox(std::string_view field) {
    if (field == "showAtLoginCheckbox" && pane_.controls.showAtLoginCheckbox.isConnected())
        return &*controls_.showAtLoginCheckbox;
    if (field == "visibilityButton" && pane_.controls.visibilityButton.isConnected())
        return &*controls_.visibilityButton;
    return nullptr;
}

std::vector<std::pair<std::string, platform::Dictionary>> SimulatedView::contents() const {
    std::vector<std::pair<std::string, platform::Dictionary>> all;
    forEachControl(
        [&all](const char* field, const auto& control, const auto& outlet) {
            if (outlet.isConnected())
                all.emplace_back(field, control->contents());
        },
        controls_, pane_.controls);
    return all;
}

} // namespace qbsp::simulated

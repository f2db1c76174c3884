#pragma once

#include "pane/QBSPPreferencePane.h"
#include "simulated/SimulatedControls.h"
#include "simulated/World.h"

#include <optional>

namespace qbsp::simulated {

/// The names of the pane's control fields, in the order of its fields.
[[nodiscard]] const std::vector<std::string>& controlFields();

/// The pane's view, with a control for each field.
class SimulatedView {
public:
    /// Makes the controls, the table with the world's columns, and connects those that the world does not
    /// name as disconnected. The view must outlive the pane's use of its controls.
    SimulatedView(QBSPPreferencePane& pane, const World& world, Transcript& transcript);

    /// The check box that a user can set by that field's name; null for any other and an unconnected one.
    [[nodiscard]] SimulatedButton* checkBox(std::string_view field);

    /// What each connected control holds, by field in the order of the pane's fields.
    [[nodiscard]] std::vector<std::pair<std::string, platform::Dictionary>> contents() const;

private:
    template <class Control>
    using Simulated = std::optional<SimulatedControl<Control>>;

    template <class Control>
    void make(std::optional<Control>& control, const char* field);
    void make(std::optional<SimulatedTable>& table, const char* field);

    const QBSPPreferencePane& pane_;
    const World& world_;
    Transcript& transcript_;
    ControlSet<Simulated> controls_;
};

} // namespace qbsp::simulated

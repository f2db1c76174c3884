#pragma once

#include "platform/Controls.h"
#include "platform/Name.h"
#include "platform/NullObjects.h"
#include "platform/Outlet.h"

#include <cstddef>

namespace qbsp {

/// The columns of the hide list's table, by their identifiers.
inline constexpr platform::ColumnIdentifier nameColumn{"1"};
inline constexpr platform::ColumnIdentifier flagColumn{"2"};

/// Something for each control of the pane's view: Holder says what. Every list of the controls is one of
/// these.
template <template <class Control> class Holder>
struct ControlSet {
    Holder<platform::RecorderControl> clipHotKeyRecorder;
    Holder<platform::RecorderControl> noteHotKeyRecorder;
    Holder<platform::Button> showAtLoginCheckbox;
    Holder<platform::Button> toggleLaunchButton;
    Holder<platform::Button> visibilityButton;
    Holder<platform::TextField> availabilityLabel;
    Holder<platform::TextField> visibilityLabel;
    Holder<platform::TextField> descriptionLabel;
    Holder<platform::TextField> takeNoteLabel;
    Holder<platform::TextField> copySelectionLabel;
    Holder<platform::TextField> attentionLabel;
    Holder<platform::Button> resetFullscreenSettingsButton;
    Holder<platform::TableView> hideAppsTable;
    Holder<platform::TextField> hideAppLabel;
};

/// Calls visit(name, sets.field...) for each control, in the order of the fields; the name is the field's.
template <class Visit, class... Sets>
constexpr void forEachControl(Visit visit, Sets&... sets) {
    visit("clipHotKeyRecorder", sets.clipHotKeyRecorder...);
    visit("noteHotKeyRecorder", sets.noteHotKeyRecorder...);
    visit("showAtLoginCheckbox", sets.showAtLoginCheckbox...);
    visit("toggleLaunchButton", sets.toggleLaunchButton...);
    visit("visibilityButton", sets.visibilityButton...);
    visit("availabilityLabel", sets.availabilityLabel...);
    visit("visibilityLabel", sets.visibilityLabel...);
    visit("descriptionLabel", sets.descriptionLabel...);
    visit("takeNoteLabel", sets.takeNoteLabel...);
    visit("copySelectionLabel", sets.copySelectionLabel...);
    visit("attentionLabel", sets.attentionLabel...);
    visit("resetFullscreenSettingsButton", sets.resetFullscreenSettingsButton...);
    visit("hideAppsTable", sets.hideAppsTable...);
    visit("hideAppLabel", sets.hideAppLabel...);
}

namespace detail {

template <class Control>
using OneByte = char;

constexpr std::size_t countVisits() {
    std::size_t visits = 0;
    forEachControl([&visits](const char*) { ++visits; });
    return visits;
}

static_assert(countVisits() == sizeof(ControlSet<OneByte>), "a control of the set is not visited");

} // namespace detail

/// The pane's references to the controls of its view, which owns them. The code that loads the view connects
/// them; messages to a control that is not connected have no effect.
using PaneControls = ControlSet<platform::Outlet>;

} // namespace qbsp

#pragma once

#include "platform/Name.h"

/// What the view says, in English. The wording is the key of the string table.
namespace qbsp::texts {

inline constexpr platform::TextKey availability{"Availability:"};
inline constexpr platform::TextKey startSorterAtLogin{"Start Sorter at login"};
inline constexpr platform::TextKey visibility{"Visibility:"};
inline constexpr platform::TextKey full{"Full"};
inline constexpr platform::TextKey description{
    "The Sorter helps to collect information from any application to specified groups even if a database is "
    "not available.\n\nThe Sorter appears as a `Quarrybook' tab attached to a screen border."};
inline constexpr platform::TextKey takeNoteHotkey{"Take Note Hotkey:"};
inline constexpr platform::TextKey copySelectionHotkey{"Copy Selection Hotkey:"};
inline constexpr platform::TextKey sorterNeedsToRestart{"Sorter needs to restart."};
inline constexpr platform::TextKey hideSorterInFullScreen{"Hide Sorter in Full Screen:"};
inline constexpr platform::TextKey resetFullscreenSettings{"Reset Fullscreen Settings"};
inline constexpr platform::TextKey application{"Application"};
inline constexpr platform::TextKey hide{"Hide"};

} // namespace qbsp::texts

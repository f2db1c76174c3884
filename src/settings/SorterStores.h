#pragma once

#include "platform/Name.h"

/// What the pane and the Sorter share: keys, files and notifications. Both processes know them by these
/// names.
namespace qbsp {

/// The host's defaults: true hides the Sorter's tab.
inline constexpr platform::DefaultsKey SorterTabIsInvisible{"SorterTabIsInvisible"};

/// Where the host's defaults hold a hot key: a signed 32-bit key code, and an unsigned 32-bit Carbon mask.
struct HotKeyKeys {
    platform::DefaultsKey code;
    platform::DefaultsKey modifiers;
};

inline constexpr HotKeyKeys clipHotKeyKeys{{"Sorter.ClipHotKeyCode"}, {"Sorter.ClipHotKeyModifiers"}};
inline constexpr HotKeyKeys noteHotKeyKeys{{"Sorter.NoteHotKeyCode"}, {"Sorter.NoteHotKeyModifiers"}};

/// The Sorter's domain: a dictionary of application name to hide flag.
inline constexpr platform::PreferenceKey UserSpecifiedFullScreenApplications{
    "UserSpecifiedFullScreenApplications"};

/// The group whose container the sandboxed host shares with its Sorter, and the Sorter's folder in it.
inline constexpr platform::ApplicationGroup sorterGroup{"Z3K8WQ4N7P.quarry2"};
inline constexpr std::string_view sharedSorterFolderName = "Sorter";

/// The file in the shared folder with the "Copy Selection" hot key, under the keys of the host's defaults.
inline constexpr std::string_view clipHotKeyFileName = "clipHotKey.dictionary";

/// A hot key was stored.
inline constexpr platform::NotificationName QBSSorterShortcutKeysChanged{"QBSSorterShortcutKeysChanged"};
/// The user has left the pane after changing hot keys. Carries the "visibility" flag.
inline constexpr platform::NotificationName QBSSorterPreferencesUpdated{"QBSSorterPreferencesUpdated"};
/// The hide list in the Sorter's domain was written.
inline constexpr platform::NotificationName QBSSorterHideAppUpdated{"QBSSorterHideAppUpdated"};

inline constexpr std::string_view visibilityEntry = "visibility";

} // namespace qbsp

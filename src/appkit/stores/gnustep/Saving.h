#pragma once

#include "appkit/stores/gnustep/StoredLists.h"

namespace qbsp::appkit {

/// The files of this process's user.
[[nodiscard]] StoredLists& storedLists();

/// The file of the host's own domain, in which the standard user defaults of this process keep what they are
/// set to.
[[nodiscard]] std::filesystem::path hostFile();

/// Saves all that waits before the user does anything else, and again every few seconds while something
/// waits. When the application quits, the last try is made.
void saveSoon();

/// Saves all that waits now, and what cannot be saved later. Waits for others two seconds at most, in all
/// that an operation saves.
void saveNow();

/// As saveNow(), for one file; what cannot be saved is forgotten, and the result false.
[[nodiscard]] bool saveOrForget(const std::filesystem::path& file);

} // namespace qbsp::appkit

#pragma once

#include "platform/Preferences.h"

#include <memory>

namespace qbsp::appkit {

/// The preferences of this system: CoreFoundation's where it is there, else what keeps its contract on the
/// files of the user's defaults.
[[nodiscard]] std::unique_ptr<platform::Preferences> makePreferences();

} // namespace qbsp::appkit

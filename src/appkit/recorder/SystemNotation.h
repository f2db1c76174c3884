#pragma once

#include "appkit/recorder/Notation.h"

namespace qbsp::recorder {

/// What this system's keyboards print on the modifier keys, in the user's language.
[[nodiscard]] ModifierNames modifierNames();

/// How combinations are shown on this system.
[[nodiscard]] Notation shownNotation();

/// How combinations are read out on this system.
[[nodiscard]] Notation spokenNotation();

} // namespace qbsp::recorder

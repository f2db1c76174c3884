#pragma once

#include "appkit/recorder/Notation.h"
#include "appkit/recorder/VirtualKeys.h"

#include <functional>
#include <string>

namespace qbsp::recorder {

/// What the current layout prints on a key cap; empty where it prints nothing or is not available.
using LayoutLabel = std::function<std::string(VirtualKey)>;

/// The combination: "⌃⇧C", "Ctrl+Shift+C". Empty for the empty combination.
[[nodiscard]] std::string comboText(const KeyCombo& combo, const Notation& notation,
                                    const LayoutLabel& layoutLabel);

/// Modifiers that wait for a key: "⌃⇧…", "Ctrl+Shift+…".
[[nodiscard]] std::string heldText(CocoaFlags held, const Notation& notation);

} // namespace qbsp::recorder

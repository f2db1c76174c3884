#pragma once

#include "appkit/recorder/VirtualKeys.h"

#include <functional>
#include <string>

namespace qbsp::recorder {

/// What the current layout prints on a key cap; empty where it prints nothing or is not available.
using LayoutLabel = std::function<std::string(VirtualKey)>;

/// The combination as it is shown: "⌃⇧C". Empty for the empty combination.
[[nodiscard]] std::string comboInSymbols(const KeyCombo& combo, const LayoutLabel& layoutLabel);

/// The combination as it is read out: "Control Shift C". Empty for the empty combination.
[[nodiscard]] std::string comboInWords(const KeyCombo& combo, const LayoutLabel& layoutLabel);

} // namespace qbsp::recorder

#pragma once

#include "appkit/recorder/VirtualKeys.h"

#include <functional>
#include <string>

namespace qbsp::recorder {

/// What the present layout prints on a key, as on its cap; empty where it prints nothing or cannot be asked.
using LayoutLabel = std::function<std::string(VirtualKey)>;

/// The combination as it is shown: "⌃⇧C". The empty combination gives an empty text.
[[nodiscard]] std::string comboInSymbols(const KeyCombo& combo, const LayoutLabel& layoutLabel);

/// The combination as it is read out: "Control Shift C". The empty combination gives an empty text.
[[nodiscard]] std::string comboInWords(const KeyCombo& combo, const LayoutLabel& layoutLabel);

} // namespace qbsp::recorder

#pragma once

#include "appkit/recorder/VirtualKeys.h"

#include <string_view>

namespace qbsp::recorder {

/// How a key is named: by the Mac's symbol, in the Mac's words, and as a PC's keyboard names it.
struct KeyName {
    std::string_view symbol;
    std::string_view word;
    std::string_view onPC = word;
};

/// The name of a key that has the same name in every layout: Return, F5, a keypad's 5. Empty for others.
[[nodiscard]] KeyName fixedKeyName(VirtualKey key);

/// What the key prints on an American keyboard, as a fallback where the current layout is not known. Empty
/// for keys that print nothing.
[[nodiscard]] std::string_view americanLabel(VirtualKey key);

} // namespace qbsp::recorder

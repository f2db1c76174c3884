#pragma once

#include "appkit/recorder/VirtualKeys.h"

#include <string_view>

namespace qbsp::recorder {

/// How a key is shown, and how it is read out.
struct KeyName {
    std::string_view symbol;
    std::string_view word;
};

/// The name of a key that has the same name in every layout: Return, F5, a keypad's 5. Empty for others.
[[nodiscard]] KeyName fixedKeyName(VirtualKey key);

/// What the key prints on an American keyboard, as a fallback where the current layout is not known. Empty
/// for keys that print nothing.
[[nodiscard]] std::string_view americanLabel(VirtualKey key);

} // namespace qbsp::recorder

#include "appkit/recorder/VirtualKeys.h"

#include <algorithm>
#include <array>

namespace qbsp::recorder {

namespace {

constexpr std::array<VirtualKey, 20> functionKeys{122, 120, 99,  118, 96,  97,  98, 100, 101, 109,
                                                  103, 111, 105, 107, 113, 106, 64, 79,  80,  90};

} // namespace

KeyCombo normalized(const KeyCombo& combo) {
    if (!holdsKey(combo))
        return {};
    return {.flags = combo.flags & modifiers::all, .code = combo.code};
}

bool holdsKey(const KeyCombo& combo) {
    return combo.code >= 0;
}

bool isFunctionKey(VirtualKey key) {
    return std::ranges::find(functionKeys, key) != functionKeys.end();
}

} // namespace qbsp::recorder

#include "platform/KeyCombo.h"

#include <array>

namespace qbsp::platform {

namespace {

struct Modifier {
    CocoaFlags cocoa;
    CarbonFlags carbon;
};

constexpr std::array modifierKeys{
    Modifier{modifiers::cocoa::shift, modifiers::carbon::shift},
    Modifier{modifiers::cocoa::control, modifiers::carbon::control},
    Modifier{modifiers::cocoa::option, modifiers::carbon::option},
    Modifier{modifiers::cocoa::command, modifiers::carbon::command},
};

} // namespace

CarbonFlags cocoaToCarbonFlags(CocoaFlags flags) {
    CarbonFlags carbon = 0;
    for (const Modifier& modifier : modifierKeys)
        carbon |= (flags & modifier.cocoa) != 0 ? modifier.carbon : 0;
    return carbon;
}

CocoaFlags carbonToCocoaFlags(CarbonFlags flags) {
    CocoaFlags cocoa = 0;
    for (const Modifier& modifier : modifierKeys)
        cocoa |= (flags & modifier.carbon) != 0 ? modifier.cocoa : 0;
    return cocoa;
}

} // namespace qbsp::platform

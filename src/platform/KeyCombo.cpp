#include "platform/KeyCombo.h"

#include <array>

namespace qbsp::platform {

namespace {

struct Modifier {
    CocoaFlags cocoa;
    CarbonFlags carbon;
};

constexpr Modifier shift{0x20000, 0x200};
constexpr Modifier control{0x40000, 0x1000};
constexpr Modifier option{0x80000, 0x800};
constexpr Modifier command{0x100000, 0x100};
constexpr std::array modifiers{shift, control, option, command};

} // namespace

CarbonFlags cocoaToCarbonFlags(CocoaFlags flags) {
    CarbonFlags carbon = 0;
    for (const Modifier& modifier : modifiers)
        carbon |= (flags & modifier.cocoa) != 0 ? modifier.carbon : 0;
    return carbon;
}

CocoaFlags carbonToCocoaFlags(CarbonFlags flags) {
    CocoaFlags cocoa = 0;
    for (const Modifier& modifier : modifiers)
        cocoa |= (flags & modifier.carbon) != 0 ? modifier.cocoa : 0;
    return cocoa;
}

} // namespace qbsp::platform

#include "appkit/recorder/gnustep/X11Layout.h"

#include <X11/XKBlib.h>
#include <X11/Xutil.h>
#include <X11/keysym.h>
#include <algorithm>
#include <array>
#include <string_view>
#include <xkbcommon/xkbcommon.h>

namespace qbsp::recorder {

namespace {

struct ModifierKey {
    KeySym keySym;
    CocoaFlags modifier;
};

// On a PC's keyboard Alt sits where the Mac has Option, and Super where it has Command.
constexpr std::array modifierKeys{
    ModifierKey{XK_Shift_L, modifiers::shift},     ModifierKey{XK_Shift_R, modifiers::shift},
    ModifierKey{XK_Control_L, modifiers::control}, ModifierKey{XK_Control_R, modifiers::control},
    ModifierKey{XK_Alt_L, modifiers::option},      ModifierKey{XK_Alt_R, modifiers::option},
    ModifierKey{XK_Meta_L, modifiers::option},     ModifierKey{XK_Meta_R, modifiers::option},
    ModifierKey{XK_Super_L, modifiers::command},   ModifierKey{XK_Super_R, modifiers::command},
    ModifierKey{XK_Hyper_L, modifiers::command},   ModifierKey{XK_Hyper_R, modifiers::command},
};

struct DeadKey {
    KeySym keySym;
    std::string_view accent;
};

constexpr std::array deadKeys{
    DeadKey{XK_dead_grave, "`"},       DeadKey{XK_dead_acute, "´"},     DeadKey{XK_dead_circumflex, "^"},
    DeadKey{XK_dead_tilde, "~"},       DeadKey{XK_dead_macron, "¯"},    DeadKey{XK_dead_breve, "˘"},
    DeadKey{XK_dead_abovedot, "˙"},    DeadKey{XK_dead_diaeresis, "¨"}, DeadKey{XK_dead_abovering, "˚"},
    DeadKey{XK_dead_doubleacute, "˝"}, DeadKey{XK_dead_caron, "ˇ"},     DeadKey{XK_dead_cedilla, "¸"},
    DeadKey{XK_dead_ogonek, "˛"},
};

std::string textOfKeySym(KeySym keySym) {
    const auto* dead = std::ranges::find(deadKeys, keySym, &DeadKey::keySym);
    if (dead != deadKeys.end())
        return std::string(dead->accent);
    std::array<char, 8> text{};
    const int size = xkb_keysym_to_utf8(static_cast<xkb_keysym_t>(keySym), text.data(), text.size());
    const bool printable = size > 1 && static_cast<unsigned char>(text.front()) > ' ';
    return printable ? std::string(text.data()) : std::string();
}

} // namespace

std::string X11Layout::text(X11KeyCode keyCode) const {
    const std::string printed = textOfKeySym(keySym(keyCode, currentGroup()));
    // A key that a second layout does not define prints what it prints in the first.
    return printed.empty() ? textOfKeySym(keySym(keyCode, 0)) : printed;
}

bool X11Layout::isModifierKey(X11KeyCode keyCode) const {
    return IsModifierKey(keySym(keyCode, 0));
}

CocoaFlags X11Layout::modifier(X11KeyCode keyCode) const {
    const auto* found = std::ranges::find(modifierKeys, keySym(keyCode, 0), &ModifierKey::keySym);
    return found == modifierKeys.end() ? 0 : found->modifier;
}

unsigned long X11Layout::keySym(X11KeyCode keyCode, unsigned group) const {
    if (display_ == nullptr || keyCode == 0)
        return NoSymbol;
    return XkbKeycodeToKeysym(static_cast<Display*>(display_), static_cast<KeyCode>(keyCode),
                              static_cast<int>(group), 0);
}

unsigned X11Layout::currentGroup() const {
    XkbStateRec state{};
    if (display_ == nullptr || XkbGetState(static_cast<Display*>(display_), XkbUseCoreKbd, &state) != Success)
        return 0;
    return state.group;
}

} // namespace qbsp::recorder

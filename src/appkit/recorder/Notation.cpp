#include "appkit/recorder/Notation.h"

namespace qbsp::recorder {

Notation macSymbols() {
    return {.modifiers = {{{modifiers::control, "⌃"},
                           {modifiers::option, "⌥"},
                           {modifiers::shift, "⇧"},
                           {modifiers::command, "⌘"}}},
            .joint = "",
            .key = &KeyName::symbol};
}

Notation macWords(const ModifierNames& names) {
    return {.modifiers = {{{modifiers::command, names.command},
                           {modifiers::option, names.option},
                           {modifiers::control, names.control},
                           {modifiers::shift, names.shift}}},
            .joint = " ",
            .key = &KeyName::word};
}

Notation pcWords(const ModifierNames& names, std::string_view joint) {
    return {.modifiers = {{{modifiers::control, names.control},
                           {modifiers::option, names.option},
                           {modifiers::shift, names.shift},
                           {modifiers::command, names.command}}},
            .joint = joint,
            .key = &KeyName::onPC};
}

} // namespace qbsp::recorder

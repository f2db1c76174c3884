#pragma once

#include "appkit/recorder/KeyNames.h"

#include <array>
#include <string>

namespace qbsp::recorder {

/// What a system's keyboards print on the modifier keys.
struct ModifierNames {
    std::string control;
    std::string option;
    std::string shift;
    std::string command;
};

/// How combinations are written.
struct Notation {
    struct Modifier {
        CocoaFlags flag;
        std::string name;
    };

    std::array<Modifier, 4> modifiers; ///< in the order in which they are written
    std::string_view joint;            ///< between two names
    std::string_view KeyName::*key;    ///< the kind of a key's name
};

/// As the Mac shows them: "⌃⌥⇧⌘↩".
[[nodiscard]] Notation macSymbols();

/// As the Mac's are read out, the strongest modifier first: "Command Option Control Shift Return".
[[nodiscard]] Notation macWords(const ModifierNames& names);

/// As PCs show them: "Ctrl+Alt+Shift+Super+Return". With a space as the joint, as theirs are read out.
[[nodiscard]] Notation pcWords(const ModifierNames& names, std::string_view joint = "+");

} // namespace qbsp::recorder

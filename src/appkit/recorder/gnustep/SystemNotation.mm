#include "appkit/recorder/SystemNotation.h"

#include "appkit/bridge/LocalizedTexts.h"
#include "appkit/bridge/Strings.h"

namespace qbsp::recorder {

using appkit::localized;
using appkit::utf8;

// On a PC's keyboard Alt sits where the Mac has Option, and Super where it has Command.
ModifierNames modifierNames() {
    return {.control = utf8(localized(@"Ctrl")),
            .option = utf8(localized(@"Alt")),
            .shift = utf8(localized(@"Shift")),
            .command = utf8(localized(@"Super"))};
}

Notation shownNotation() {
    return pcWords(modifierNames());
}

Notation spokenNotation() {
    ModifierNames names = modifierNames();
    names.control = utf8(localized(@"Control"));
    return pcWords(names, " ");
}

} // namespace qbsp::recorder

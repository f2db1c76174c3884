#include "appkit/recorder/SystemNotation.h"

#include "appkit/bridge/LocalizedTexts.h"
#include "appkit/bridge/Strings.h"

namespace qbsp::recorder {

using appkit::localized;
using appkit::utf8;

ModifierNames modifierNames() {
    return {.control = utf8(localized(@"Control")),
            .option = utf8(localized(@"Option")),
            .shift = utf8(localized(@"Shift")),
            .command = utf8(localized(@"Command"))};
}

Notation shownNotation() {
    return macSymbols();
}

Notation spokenNotation() {
    return macWords(modifierNames());
}

} // namespace qbsp::recorder

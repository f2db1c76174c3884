#import "appkit/view/ViewTexts.h"

#include "appkit/bridge/LocalizedTexts.h"

namespace qbsp::appkit {

NSString* visibilityTip() {
    return localized(
        @"Shows the Sorter's tab at the edge of the screen. When this is off, the tab is hidden; "
        @"turn it on again to bring the tab back.");
}

NSString* loginTip() {
    return localized(@"Starts the Sorter whenever you log in.");
}

NSString* launchTip() {
    return localized(@"Starts the Sorter, or quits it while it runs.");
}

NSString* recorderTip() {
    return localized(@"Click, then press the keys for this hot key. Esc keeps the old one.");
}

NSString* listTip() {
    return localized(@"The Sorter's tab hides while a ticked application fills the screen.");
}

NSString* addTip() {
    return localized(@"Adds applications that you choose to the list.");
}

NSString* resetTip() {
    return localized(@"Restores the list as it was at first, without asking.");
}

} // namespace qbsp::appkit

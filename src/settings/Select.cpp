#include "pane/QBSPPreferencePane.h"
#include "platform/Host.h"
#include "platform/PreferencePaneBase.h"
#include "settings/SorterStores.h"
#include "sorter/QBSPSorterControl.h"

namespace qbsp {

void QBSPPreferencePane::willSelect() {
    // Each combination is set before the pane becomes that recorder's delegate, so that the first selection
    // cannot come back as a change by the user. Later on it takes a recorder that reports only the user's.
    loadHotKey(clipHotKeyKeys, *controls.clipHotKeyRecorder);
    controls.clipHotKeyRecorder->setDelegate(*this);
    loadHotKey(noteHotKeyKeys, *controls.noteHotKeyRecorder);
    controls.noteHotKeyRecorder->setDelegate(*this);
    showLoginItemState();
    updateToggleButtonTitle();
    loadHideAppData();
    base_.willSelect();
}

void QBSPPreferencePane::showLoginItemState() {
    // In the sandboxed build too, where the check box is hidden: it shows what the system reports.
    const bool on = startsAtLogin();
    controls.showAtLoginCheckbox->setState(on ? platform::ButtonState::on : platform::ButtonState::off);
}

bool QBSPPreferencePane::startsAtLogin() const {
    if (services_.host.isSandboxed())
        return appIsPresentInLoginItems();
    return loginItemRegistrar_->applicationIsRegistered(sorterAppURL());
}

} // namespace qbsp

#include "pane/QBSPPreferencePane.h"
#include "platform/Host.h"
#include "platform/PreferencePaneBase.h"
#include "platform/UserDefaults.h"
#include "settings/SorterDomain.h"
#include "settings/SorterStores.h"
#include "settings/Texts.h"
#include "sorter/QBSPSorterControl.h"

namespace qbsp {

void QBSPPreferencePane::willUnselect() {
    services_.workspace.removeObserver(*this);
    if (!services_.host.isSandboxed())
        applyLoginItemCheckbox();
    announceChangedHotKeys();
    saveHideList();
    base_.willUnselect();
}

void QBSPPreferencePane::applyLoginItemCheckbox() {
    // Requested at every deselect, even when the box was not touched: the login items may have been changed
    // elsewhere since, and what the box shows is what the user wants.
    switch (controls.showAtLoginCheckbox->state()) {
    case platform::ButtonState::off:
        if (!loginItemRegistrar_->unregisterApplication(sorterAppURL()))
            reportLoginItemFailure(texts::couldNotRemoveLoginItem, platform::ButtonState::on);
        break;
    case platform::ButtonState::on:
        if (!loginItemRegistrar_->registerApplication(sorterAppURL()))
            reportLoginItemFailure(texts::couldNotAddLoginItem, platform::ButtonState::off);
        break;
    case platform::ButtonState::mixed:
        break;
    }
}

void QBSPPreferencePane::reportLoginItemFailure(platform::TextKey message,
                                                platform::ButtonState stateAfterwards) {
    showLoginItemEditFailureAlert(localized(message));
    controls.showAtLoginCheckbox->setState(stateAfterwards);
}

void QBSPPreferencePane::announceChangedHotKeys() {
    if (!shouldRestartSorter_ || !editionSorterIsRunning() || !services_.userDefaults.synchronize())
        return;
    // Inverted, as the Sorter reads it: "visibility" is NO when the tab is to be fully visible.
    const bool visibility = controls.visibilityButton->state() != platform::ButtonState::on;
    platform::Dictionary userInfo;
    userInfo.emplace(visibilityEntry, visibility);
    postToSorter(QBSSorterPreferencesUpdated, userInfo);
    shouldRestartSorter_ = false;
}

void QBSPPreferencePane::saveHideList() {
    if (!hideAppsUpdated_)
        return;
    sorterDomain().writeHideFlags(tableArray_.hideFlags());
    notifyRunningSorterOfHideList();
    // Even when no Sorter was running to be notified: the list is stored, and the Sorter reads it when it
    // starts.
    hideAppsUpdated_ = false;
}

} // namespace qbsp

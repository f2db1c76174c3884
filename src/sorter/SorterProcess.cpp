#include "pane/QBSPPreferencePane.h"
#include "platform/Host.h"
#include "platform/RunLoop.h"
#include "platform/RunningApplications.h"
#include "platform/ServiceManagement.h"
#include "sorter/SorterIdentity.h"
#include "sorter/Texts.h"

namespace qbsp {

namespace {

constexpr platform::Seconds refreshDelay{0.75};

} // namespace

void QBSPPreferencePane::toggleSorterProcess(Sender) {
    const bool stopped =
        services_.host.isSandboxed() ? switchEmbeddedSorter() : switchSorterThroughRegistrar();
    // Nothing in the pane makes this request. A caller in the host may, and gets the reset when the Sorter
    // has been stopped; a start leaves the request waiting.
    if (stopped && deleteFullScreenSettingsInSorter_)
        deleteFullScreenSettings();
    controls.attentionLabel->setHidden(true);
    // One refresh for each click, whatever earlier clicks have scheduled.
    services_.runLoop.performSelectorAfterDelay(
        platform::Selector{"updateToggleButtonTitle"},
        [self = shared_from_this()] { self->updateToggleButtonTitle(); }, refreshDelay);
}

/// Returns true when that stopped the Sorter. The button stays enabled: a second click within the delay acts
/// on what then runs, since the system may take longer to switch a login item than the delay is long.
bool QBSPPreferencePane::switchEmbeddedSorter() {
    auto& loginItems = services_.serviceManagement;
    if (services_.runningApplications.applicationIsRunning(SorterLoginItemIdentifier)) {
        loginItems.loginItemSetEnabled(SorterLoginItemIdentifier, false);
        return true;
    }
    // Switching on an item that is on already would start nothing.
    if (appIsPresentInLoginItems())
        loginItems.loginItemSetEnabled(SorterLoginItemIdentifier, false);
    loginItems.loginItemSetEnabled(SorterLoginItemIdentifier, true);
    return false;
}

/// Returns true when that stopped the Sorter. The button stays disabled until the next refresh.
bool QBSPPreferencePane::switchSorterThroughRegistrar() {
    controls.toggleLaunchButton->setEnabled(false);
    const bool running = editionSorterIsRunning();
    if (running)
        closeSorterApplication();
    else
        showSorterApplication();
    return running;
}

void QBSPPreferencePane::updateToggleButtonTitle() {
    const bool running = services_.runningApplications.applicationIsRunning(currentIdentifier());
    controls.toggleLaunchButton->setTitle(localized(running ? texts::quit : texts::show));
    controls.toggleLaunchButton->setEnabled(true);
}

void QBSPPreferencePane::appDied(const platform::Notification& notification) {
    // The edition's Sorter in both builds: the sandboxed build's embedded Sorter ends when its login item is
    // switched off, and the click that did that has scheduled the refresh.
    const auto died = platform::stringEntry(notification.userInfo, platform::NSApplicationBundleIdentifier);
    if (died == editionSorter().bundleIdentifier.text)
        updateToggleButtonTitle();
}

const SorterIdentity& QBSPPreferencePane::editionSorter() const {
    return isSorterProApp_ ? fullSorter : soloSorter;
}

platform::BundleIdentifier QBSPPreferencePane::currentIdentifier() const {
    return services_.host.isSandboxed() ? SorterLoginItemIdentifier : editionSorter().bundleIdentifier;
}

bool QBSPPreferencePane::editionSorterIsRunning() const {
    // In the sandboxed build too: notices are for the edition's Sorter, never for the embedded one.
    return services_.runningApplications.applicationIsRunning(editionSorter().bundleIdentifier);
}

} // namespace qbsp

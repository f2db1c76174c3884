#include "pane/QBSPPreferencePane.h"
#include "platform/Host.h"
#include "platform/Log.h"
#include "platform/UserDefaults.h"
#include "sorter/QBSPSorterControl.h"

#include <tuple>

namespace qbsp {

void QBSPPreferencePane::showSorterApplication() {
    // The Sorter reads its hot keys from the host's defaults as it starts. It is started all the same when
    // they could not be flushed.
    std::ignore = services_.userDefaults.synchronize();
    if (services_.host.isSandboxed())
        launchEmbeddedSorter();
    else
        loginItemRegistrar_->showSorterApplication();
}

void QBSPPreferencePane::launchEmbeddedSorter() {
    auto launched = services_.workspace.launchApplicationAtURL(embeddedSorterURL(),
                                                               platform::LaunchOptions::withoutActivation);
    sandboxedSorterApp_ = std::move(launched.application);
    // The reported error decides, not the missing application: a Sorter that ran already may answer none.
    if (launched.error)
        services_.log.log("ERROR: Failed to start Sorter: " + *launched.error);
}

void QBSPPreferencePane::closeSorterApplication() {
    if (services_.host.isSandboxed()) {
        terminateEmbeddedSorter();
        return;
    }
    loginItemRegistrar_->closeSorterApplication();
    // A Sorter that starts anew reads the changed hot keys by itself.
    shouldRestartSorter_ = false;
}

void QBSPPreferencePane::terminateEmbeddedSorter() {
    // It is kept after it has ended: asking it again does no harm, and tells when it goes on running.
    if (sandboxedSorterApp_ != nullptr && !sandboxedSorterApp_->terminate())
        services_.log.log("ERROR: Unable to stop the Sorter");
}

} // namespace qbsp

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
    // The reported error decides, not a missing application: there may be none for a Sorter that ran already.
    if (launched.error)
        services_.log.log("ERROR: Failed to start Sorter: " + *launched.error);
}

void QBSPPreferencePane::closeSorterApplication() {
    if (services_.host.isSandboxed()) {
        terminateEmbeddedSorter();
        // shouldRestartSorter_ stays: the notice that it holds is for the edition's Sorter, which this does
        // not stop.
        return;
    }
    loginItemRegistrar_->closeSorterApplication();
    // A Sorter that is started again reads the changed hot keys by itself.
    shouldRestartSorter_ = false;
}

void QBSPPreferencePane::terminateEmbeddedSorter() {
    // It is kept after it has ended: asking it to quit again does no harm.
    if (sandboxedSorterApp_ != nullptr && !sandboxedSorterApp_->terminate())
        services_.log.log("ERROR: Unable to stop the Sorter");
}

} // namespace qbsp

#include "pane/QBSPPreferencePane.h"
#include "platform/DistributedNotificationCenter.h"
#include "platform/ProcessInfo.h"
#include "settings/SorterDomain.h"
#include "settings/SorterStores.h"
#include "sorter/SorterIdentity.h"

namespace qbsp {

void QBSPPreferencePane::notifyRunningSorterOfHideList() {
    if (editionSorterIsRunning())
        postToSorter(QBSSorterHideAppUpdated, std::nullopt);
}

void QBSPPreferencePane::postToSorter(platform::NotificationName name,
                                      const std::optional<platform::Dictionary>& userInfo) {
    services_.notifications.postNotificationName(name, services_.processInfo.processName(), userInfo,
                                                 platform::NotificationOptions::deliverImmediately);
}

SorterDomain QBSPPreferencePane::sorterDomain() const {
    return {services_.preferences, editionSorter().domain()};
}

} // namespace qbsp

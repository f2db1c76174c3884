#include "pane/QBSPPreferencePane.h"
#include "platform/Alert.h"
#include "platform/ServiceManagement.h"
#include "sorter/LoginItemJobs.h"
#include "sorter/QBSPSorterControl.h"
#include "sorter/SorterIdentity.h"
#include "sorter/Texts.h"

namespace qbsp {

bool QBSPPreferencePane::appIsPresentInLoginItems() const {
    const auto jobs = services_.serviceManagement.copyAllJobDictionaries(platform::JobDomain::userLaunchd);
    return jobs && jobIsOnDemand(*jobs, SorterLoginItemIdentifier);
}

void QBSPPreferencePane::showLoginItemEditFailureAlert(std::string_view message) {
    const auto alert = services_.alerts.makeAlert();
    alert->setAlertStyle(platform::AlertStyle::critical);
    alert->setMessageText(message);
    alert->setInformativeText(localized(texts::mayLackPermissions));
    alert->addButtonWithTitle(localized(texts::check));
    alert->addButtonWithTitle(localized(texts::cancel));
    if (alert->runModal() == platform::NSAlertFirstButtonReturn)
        loginItemRegistrar_->showAccountsSystemPreferencePane();
}

} // namespace qbsp

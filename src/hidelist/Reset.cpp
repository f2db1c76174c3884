#include "hidelist/FactoryDefaults.h"
#include "pane/QBSPPreferencePane.h"
#include "settings/SorterDomain.h"

namespace qbsp {

void QBSPPreferencePane::resetFullscreenSettings(Sender) {
    deleteFullScreenSettings();
}

void QBSPPreferencePane::deleteFullScreenSettings() {
    // The Sorter beside the registrar in both builds: the embedded one is not asked for its factory list.
    sorterDomain().resetHideFlags(factoryHideFlags(sorterPathBesideRegistrar(), services_.propertyLists));
    notifyRunningSorterOfHideList();
    tableArray_.removeAll();
    loadHideAppData();
    controls.hideAppsTable->reloadData();
    // What was changed before the reset stays marked as changed: leaving the pane then writes what is shown.
    deleteFullScreenSettingsInSorter_ = false;
}

} // namespace qbsp

#include "hidelist/ApplicationName.h"
#include "pane/QBSPPreferencePane.h"
#include "platform/OpenPanel.h"
#include "platform/PreferencePaneBase.h"

namespace qbsp {

void QBSPPreferencePane::addHideApp(Sender) {
    const auto panel = services_.openPanels.openPanel();
    panel->setCanChooseDirectories(false);
    panel->setAllowsMultipleSelection(false);
    panel->setAllowedFileTypes(std::vector<std::string>(1, "app"));
    panel->setDirectoryURL(platform::URL::fileURLWithPath("/Applications"));
    panel->beginSheetModalForWindow(
        base_.mainViewWindow(), [self = shared_from_this(), panel](std::int64_t result) {
            const auto chosen = result == platform::NSOKButton ? panel->chosenURL() : std::nullopt;
            if (chosen)
                self->addApplicationAt(*chosen);
        });
}

void QBSPPreferencePane::addApplicationAt(const platform::URL& bundle) {
    const auto name = applicationName(bundle, services_.files, services_.propertyLists, services_.strings);
    if (!name)
        return;
    const std::int64_t present = indexOfAppInList(*name);
    if (present != HideList::notFound) {
        showRow(static_cast<std::size_t>(present));
        return;
    }
    // Adding only puts the application on the list, with its flag off; hiding is the user's next click.
    const std::size_t added = tableArray_.add({*name, false});
    // No row can be added to a list that was never loaded. What follows is done all the same: leaving the
    // pane then stores an empty list, and from the next selection on there is one to add to.
    controls.hideAppsTable->reloadData();
    showRow(added);
    hideAppsUpdated_ = true;
}

void QBSPPreferencePane::showRow(std::size_t row) {
    controls.hideAppsTable->selectRow(row);
    controls.hideAppsTable->scrollRowToVisible(row);
}

} // namespace qbsp

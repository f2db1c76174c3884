#include "pane/QBSPPreferencePane.h"
#include "pane/Texts.h"
#include "platform/Host.h"
#include "platform/PreferencePaneBase.h"

namespace qbsp {

namespace {

constexpr platform::NotificationName terminationNotification{
    "NSWorkspaceDidTerminateApplicationNotification"};

} // namespace

void QBSPPreferencePane::mainViewDidLoad() {
    locateSorter();
    showTexts();
    hideAppsUpdated_ = false;
    titleColumn(nameColumn, texts::application);
    titleColumn(flagColumn, texts::hide);
    if (services_.host.isSandboxed())
        hideControlsUnusedInSandbox();
    // The only registration. Leaving the pane ends it, and showing the pane again does not renew it: the
    // title is refreshed then anyway.
    services_.workspace.addObserver(weak_from_this(), terminationNotification);
    base_.mainViewDidLoad();
}

void QBSPPreferencePane::showTexts() {
    controls.availabilityLabel->setStringValue(localized(texts::availability));
    controls.showAtLoginCheckbox->setTitle(localized(texts::startSorterAtLogin));
    controls.visibilityLabel->setStringValue(localized(texts::visibility));
    controls.visibilityButton->setTitle(localized(texts::full));
    controls.descriptionLabel->setStringValue(localized(texts::description));
    controls.takeNoteLabel->setStringValue(localized(texts::takeNoteHotkey));
    controls.copySelectionLabel->setStringValue(localized(texts::copySelectionHotkey));
    controls.attentionLabel->setStringValue(localized(texts::sorterNeedsToRestart));
    // Nothing shows the notice again: a running Sorter takes up changes without a restart.
    controls.attentionLabel->setHidden(true);
    controls.hideAppLabel->setStringValue(localized(texts::hideSorterInFullScreen));
    controls.resetFullscreenSettingsButton->setTitle(localized(texts::resetFullscreenSettings));
}

void QBSPPreferencePane::titleColumn(platform::ColumnIdentifier identifier, platform::TextKey text) {
    platform::TableColumn& column = controls.hideAppsTable->tableColumnWithIdentifier(identifier);
    column.setHeaderStringValue(localized(text));
}

void QBSPPreferencePane::hideControlsUnusedInSandbox() {
    controls.showAtLoginCheckbox->setHidden(true);
    controls.availabilityLabel->setHidden(true);
    controls.copySelectionLabel->setHidden(true);
    controls.clipHotKeyRecorder->setHidden(true);
}

} // namespace qbsp

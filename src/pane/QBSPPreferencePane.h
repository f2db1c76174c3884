#pragma once

#include "hidelist/HideList.h"
#include "pane/PaneControls.h"
#include "platform/Services.h"
#include "platform/URL.h"
#include "platform/Value.h"
#include "platform/Workspace.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace qbsp::platform {
class PreferencePaneBase;
}

namespace qbsp {

class QBSPSorterControl;
struct HotKeyKeys;
struct SorterIdentity;
class SorterDomain;

/// The one controller of the plug-in. Its operations are the messages that the host, the view and the
/// platform send it, on the main thread: initialize, initWithBundle, mainViewDidLoad once, then any number of
/// willSelect and willUnselect with the user's actions in between. What the platform refuses is reported in
/// the log and in the login-item alert, never thrown; only the two operations that take a row of the table
/// throw, for a row that the list does not have. Each operation lies in the folder of its subsystem.
class QBSPPreferencePane final : public platform::RecorderDelegate,
                                 public platform::TerminationObserver,
                                 public std::enable_shared_from_this<QBSPPreferencePane> {
    struct Creation {}; // only initWithBundle can make a pane

public:
    using Sender = const platform::View*;

    // --- Life (pane/) ---

    /// Class start-up, before the first pane is made: stores "SorterTabIsInvisible" as NO when it has no
    /// value.
    static void initialize(platform::UserDefaults& userDefaults);

    /// Makes a pane; null when the platform refuses. The services and the base must outlive the pane.
    [[nodiscard]] static std::shared_ptr<QBSPPreferencePane>
    initWithBundle(const platform::Services& services, platform::PreferencePaneBase& base);

    QBSPPreferencePane(Creation, const platform::Services& services, platform::PreferencePaneBase& base);

    /// Makes no platform call: a workspace that still has the pane as an observer finds it gone.
    ~QBSPPreferencePane() override = default;

    QBSPPreferencePane(const QBSPPreferencePane&) = delete;
    QBSPPreferencePane& operator=(const QBSPPreferencePane&) = delete;
    QBSPPreferencePane(QBSPPreferencePane&&) = delete;
    QBSPPreferencePane& operator=(QBSPPreferencePane&&) = delete;

    /// The view was loaded and its controls connected: finds the Sorter, gives the controls their texts, and
    /// starts to observe terminations.
    void mainViewDidLoad();

    // --- Shown and left (settings/) ---

    /// The pane is about to be shown: fills the controls from what is stored. Writes nothing.
    void willSelect();

    /// The pane is about to be left: applies the login-item check box, announces changed hot keys, saves a
    /// changed list, and ends the observation of terminations.
    void willUnselect();

    // --- The Sorter process and its login item (sorter/) ---

    /// The start/stop button: stops a Sorter that runs, starts one that does not. Waits for neither.
    void toggleSorterProcess(Sender sender);

    /// Titles the button with what a click would do, and enables it.
    void updateToggleButtonTitle();

    /// Refreshes the button when the edition's Sorter terminated.
    void appDied(const platform::Notification& notification) override;

    /// Starts the Sorter: the registrar's in the ordinary build, the embedded one in the sandboxed build.
    void showSorterApplication();

    /// Stops the Sorter: through the registrar, or the embedded one if this pane launched it.
    void closeSorterApplication();

    /// True when the embedded Sorter's job is marked on demand.
    [[nodiscard]] bool appIsPresentInLoginItems() const;

    /// Shows an alert with that message, already localised, and waits for the user, who may have the system's
    /// accounts preferences opened.
    void showLoginItemEditFailureAlert(std::string_view message);

    // --- Hot keys (hotkeys/) ---

    /// True when the other hot key is stored with that combination.
    [[nodiscard]] bool
    shortcutRecorderIsKeyCodeAndFlagsTakenReason(const platform::RecorderControl& recorder,
                                                 std::int64_t keyCode, platform::CocoaFlags flags,
                                                 std::optional<std::string>* reason) override;

    /// Stores the combination as the recorder's hot key and notifies the Sorter.
    void shortcutRecorderKeyComboDidChange(const platform::RecorderControl& recorder,
                                           const platform::KeyCombo& keyCombo) override;

    /// Remembers that a running Sorter must be notified when the pane is left.
    void enableAttentionLabel(Sender sender);

    // --- The full-screen hide list (hidelist/) ---

    /// Replaces the rows by the stored list and reloads the table; does nothing when no list is stored.
    void loadHideAppData();

    [[nodiscard]] std::int64_t numberOfRowsInTableView(const platform::TableView& tableView) const;

    /// The row's name for the column "1", its flag as 0 or 1 for any other. Throws std::out_of_range for a
    /// row outside the list.
    [[nodiscard]] platform::Value tableViewObjectValueForTableColumnRow(const platform::TableView& tableView,
                                                                        const platform::TableColumn& column,
                                                                        std::int64_t row) const;

    /// Sets the row's flag: 1 hides, anything else does not. Does nothing for a column other than "2". Throws
    /// std::out_of_range for a row outside the list.
    void tableViewSetObjectValueForTableColumnRow(const platform::TableView& tableView,
                                                  const platform::Value& value,
                                                  const platform::TableColumn& column, std::int32_t row);

    /// The row of that name, ignoring case; -1 when there is none.
    [[nodiscard]] std::int64_t indexOfAppInList(std::string_view appName) const;

    /// The add button: has the user choose an application in a sheet, and adds it to the list unless it is
    /// there. Returns while the sheet is open.
    void addHideApp(Sender sender);

    /// The reset button: deleteFullScreenSettings.
    void resetFullscreenSettings(Sender sender);

    /// Replaces the stored list by the Sorter's factory list, notifies a running Sorter, and shows the
    /// result.
    void deleteFullScreenSettings();

    // --- Properties and fields ---

    /// Where the Sorter lies; none before the view was loaded, and when that could not be found out. Both
    /// accessors may be called on any thread.
    [[nodiscard]] std::optional<platform::URL> sorterAppURL() const;
    void setSorterAppURL(std::optional<platform::URL> url);

    /// The host's registrar, which the pane does not own; null when there is none.
    [[nodiscard]] QBSPSorterControl* loginItemRegistrar() const { return loginItemRegistrar_.get(); }

    void setLoginItemRegistrar(QBSPSorterControl* registrar);

    /// True while a running Sorter has yet to be notified of changed hot keys.
    [[nodiscard]] bool shouldRestartSorter() const { return shouldRestartSorter_; }

    /// True when the full-screen settings are to be reset right after the Sorter is next stopped from the
    /// pane. No operation of the pane sets this; it is there for a caller in the host.
    [[nodiscard]] bool deleteFullScreenSettingsInSorter() const { return deleteFullScreenSettingsInSorter_; }

    void setDeleteFullScreenSettingsInSorter(bool requested) {
        deleteFullScreenSettingsInSorter_ = requested;
    }

    /// True in the full edition; false in the Solo edition and before the view was loaded.
    [[nodiscard]] bool isSorterProApp() const { return isSorterProApp_; }

    /// The rows of the hide list.
    [[nodiscard]] const HideList& tableArray() const { return tableArray_; }

    /// True when the hide list was changed since it was last saved.
    [[nodiscard]] bool hideAppsUpdated() const { return hideAppsUpdated_; }

    /// True once the pane itself has launched the embedded Sorter.
    [[nodiscard]] bool hasSandboxedSorterApp() const { return sandboxedSorterApp_ != nullptr; }

    PaneControls controls;

private:
    // pane/
    void findRegistrar();
    void registerEmbeddedSorter();
    void locateSorter();
    void showTexts();
    void titleColumn(platform::ColumnIdentifier identifier, platform::TextKey text);
    void hideControlsUnusedInSandbox();
    [[nodiscard]] std::string localized(platform::TextKey text) const;
    [[nodiscard]] platform::URL embeddedSorterURL() const;
    [[nodiscard]] std::optional<platform::URL> sorterURLBesideRegistrar() const;
    [[nodiscard]] std::optional<std::string> sorterPathBesideRegistrar() const;

    // settings/
    void showLoginItemState();
    [[nodiscard]] bool startsAtLogin() const;
    void applyLoginItemCheckbox();
    void reportLoginItemFailure(platform::TextKey message, platform::ButtonState stateAfterwards);
    void announceChangedHotKeys();
    void saveHideList();
    void notifyRunningSorterOfHideList();
    void postToSorter(platform::NotificationName name, const std::optional<platform::Dictionary>& userInfo);
    [[nodiscard]] SorterDomain sorterDomain() const;

    // sorter/
    [[nodiscard]] const SorterIdentity& editionSorter() const;
    [[nodiscard]] platform::BundleIdentifier currentIdentifier() const;
    [[nodiscard]] bool editionSorterIsRunning() const;
    [[nodiscard]] bool switchEmbeddedSorter();
    [[nodiscard]] bool switchSorterThroughRegistrar();
    void launchEmbeddedSorter();
    void terminateEmbeddedSorter();

    // hotkeys/
    void loadHotKey(const HotKeyKeys& keys, platform::RecorderControl& recorder);
    void storeHotKey(const HotKeyKeys& keys, const platform::KeyCombo& keyCombo);
    void mirrorClipHotKey(const platform::KeyCombo& keyCombo);

    // hidelist/
    void addApplicationAt(const platform::URL& bundle);
    void showRow(std::size_t row);

    platform::Services services_;
    platform::PreferencePaneBase& base_;

    mutable std::mutex sorterAppURLLock_;
    std::optional<platform::URL> sorterAppURL_;
    platform::Outlet<QBSPSorterControl> loginItemRegistrar_;
    bool shouldRestartSorter_ = false;
    bool deleteFullScreenSettingsInSorter_ = false;
    bool isSorterProApp_ = false;
    HideList tableArray_;
    bool hideAppsUpdated_ = false;
    std::shared_ptr<platform::RunningApplication> sandboxedSorterApp_;
};

} // namespace qbsp

#include "appkit/plugin/PaneShell.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Strings.h"
#include "appkit/services/Registrar.h"
#include "platform/NullObjects.h"

#include <cstdint>
#include <stdexcept>
#include <utility>

namespace qbsp::appkit {

namespace {

/// Runs code that accesses a row. Raises NSRangeException for a row that the list does not have, as AppKit's
/// arrays do.
template <class Access>
void accessRow(Access access) {
    try {
        access();
        return;
    } catch (const std::out_of_range&) {
        // Raised below, because an Objective-C exception must not leave a C++ handler.
    }
    [NSException raise:NSRangeException format:@"The hide list does not have that row."];
}

void connect(NSButton* button, id target, SEL action) {
    [button setTarget:target];
    [button setAction:action];
}

} // namespace

PaneShell::PaneShell(PrincipalObject object, NSBundle* bundle)
    : object_(object), bundle_(bundle), services_(object, [object class]), base_(object, bundle) {}

// A host may keep the view alive longer than the pane.
PaneShell::~PaneShell() {
    if (view_.get() != nil)
        connectActions(nil);
}

bool PaneShell::create() {
    pane_ = qbsp::QBSPPreferencePane::initWithBundle(services_.references(), base_);
    return pane_ != nullptr;
}

#pragma mark - The view

QBSPPaneView* PaneShell::view() {
    if (view_.get() == nil)
        makeView();
    return view_.get();
}

void PaneShell::makeView() {
    QBSPPaneView* view = [[QBSPPaneView alloc] initWithFrame:NSZeroRect];
    view_ = Retained<QBSPPaneView*>::adopt(view);
    visibility_ = Retained<QBSPVisibilityBinding*>::adopt(
        [[QBSPVisibilityBinding alloc] initWithCheckBox:[view controls].visibilityButton]);
    [[view addButton] setTitle:[bundle_ localizedStringForKey:@"Add..." value:@"" table:nil]];
    connectActions(object_);
    pane_->controls = controls_.emplace([view controls]).outlets();
}

void PaneShell::connectActions(id target) {
    const ViewControls& controls = [view_.get() controls];
    connect(controls.toggleLaunchButton, target, @selector(toggleSorterProcess:));
    connect(controls.resetFullscreenSettingsButton, target, @selector(resetFullscreenSettings:));
    connect([view_.get() addButton], target, @selector(addHideApp:));
    [controls.hideAppsTable setDataSource:target];
}

#pragma mark - The registrar

QBSPRegistrar PaneShell::loginItemRegistrar() {
    const auto* registrar = dynamic_cast<const RegistrarAdapter*>(pane_->loginItemRegistrar());
    return registrar == nullptr ? nil : registrar->object();
}

void PaneShell::setLoginItemRegistrar(QBSPRegistrar registrar) {
    pane_->setLoginItemRegistrar(registrar == nil ? nullptr : &givenRegistrar_.emplace(registrar));
}

#pragma mark - Messages from the platform

void PaneShell::appDied(NSNotification* notification) {
    pane_->appDied({dictionaryFromObject([notification userInfo]).value_or(platform::Dictionary())});
}

bool PaneShell::isTaken(id recorder, const platform::KeyCombo& keyCombo, NSString** reason) {
    std::optional<std::string> text;
    const bool taken = pane_->shortcutRecorderIsKeyCodeAndFlagsTakenReason(
        recorderControl(recorder), keyCombo.code, keyCombo.flags, reason == nullptr ? nullptr : &text);
    if (text)
        *reason = nsString(*text);
    return taken;
}

void PaneShell::keyComboDidChange(id recorder, const platform::KeyCombo& keyCombo) {
    pane_->shortcutRecorderKeyComboDidChange(recorderControl(recorder), keyCombo);
}

platform::RecorderControl& PaneShell::recorderControl(id recorder) {
    platform::RecorderControl* found = controls_ ? controls_->recorderFor(recorder) : nullptr;
    return found == nullptr ? platform::nullObject<platform::RecorderControl>() : *found;
}

#pragma mark - Life cycle

void PaneShell::mainViewDidLoad() {
    // A host may send the message again after the view was loaded.
    if (std::exchange(isSetUp_, true))
        return;
    pane_->mainViewDidLoad();
    [visibility_.get() refresh];
    [view_.get() contentsDidChange];
}

void PaneShell::willSelect() {
    isShown_ = true;
    [visibility_.get() refresh];
    pane_->willSelect();
    [view_.get() contentsDidChange];
}

void PaneShell::willUnselect() {
    if (applicationTerminates_)
        return;
    isShown_ = false;
    pane_->willUnselect();
}

void PaneShell::applicationWillTerminate() {
    if (isShown_)
        willUnselect();
    applicationTerminates_ = true;
}

#pragma mark - The table

platform::TableView& PaneShell::hideAppsTable() {
    return controls_ ? controls_->hideAppsTable() : platform::nullObject<platform::TableView>();
}

NSInteger PaneShell::numberOfRows() {
    return static_cast<NSInteger>(pane_->numberOfRowsInTableView(hideAppsTable()));
}

id PaneShell::objectValue(NSTableColumn* column, NSInteger row) {
    platform::Value value;
    accessRow([&] {
        value = pane_->tableViewObjectValueForTableColumnRow(hideAppsTable(), AppKitTableColumn(column), row);
    });
    return objectFromValue(value);
}

void PaneShell::setObjectValue(id value, NSTableColumn* column, NSInteger row) {
    accessRow([&] {
        // The pane takes this row as a 32-bit integer, which is enough for any list.
        pane_->tableViewSetObjectValueForTableColumnRow(hideAppsTable(), valueFromObject(value),
                                                        AppKitTableColumn(column),
                                                        static_cast<std::int32_t>(row));
    });
}

} // namespace qbsp::appkit

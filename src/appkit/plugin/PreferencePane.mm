#import "appkit/plugin/PreferencePane.h"

#include "appkit/bridge/Strings.h"
#include "appkit/bridge/URLs.h"
#include "appkit/plugin/PaneShell.h"
#include "appkit/stores/UserDefaults.h"

#include <utility>

using qbsp::appkit::PaneShell;

@implementation QBSPPreferencePane

#pragma mark - Life cycle

+ (void)initialize {
    if (self != [QBSPPreferencePane class])
        return;
    qbsp::appkit::AppKitUserDefaults userDefaults;
    qbsp::QBSPPreferencePane::initialize(userDefaults);
}

- (id)initWithBundle:(NSBundle*)bundle {
    auto created = std::make_unique<PaneShell>(self, bundle);
    if (!created->create())
        return nil;
    shell = std::move(created);
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(applicationWillTerminate:)
                                                 name:NSApplicationWillTerminateNotification
                                               object:nil];
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    // Destroyed while this object is still intact, because what the shell releases may refer to it.
    shell = nullptr;
    [super dealloc];
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    shell->applicationWillTerminate();
}

#pragma mark - NSPreferencePane

- (NSView*)loadMainView {
    QBSPPaneView* view = shell->view();
    [self setMainView:view];
    [self mainViewDidLoad];
    // Only known now, because the pane has just hidden the controls that do not apply.
    [self setFirstKeyView:[view firstControl]];
    [self setInitialKeyView:[view firstControl]];
    [self setLastKeyView:[view lastControl]];
    return view;
}

- (void)mainViewDidLoad {
    shell->mainViewDidLoad();
}

- (void)willSelect {
    shell->willSelect();
}

- (void)didSelect {
    [super didSelect];
    [shell->view() takeFocus];
}

- (void)willUnselect {
    shell->willUnselect();
}

#pragma mark - Actions

- (IBAction)toggleSorterProcess:(id)sender {
    shell->pane().toggleSorterProcess(nullptr);
}

- (IBAction)resetFullscreenSettings:(id)sender {
    shell->pane().resetFullscreenSettings(nullptr);
}

- (IBAction)addHideApp:(id)sender {
    shell->pane().addHideApp(nullptr);
}

#pragma mark - The Sorter

- (void)updateToggleButtonTitle {
    shell->pane().updateToggleButtonTitle();
}

- (void)showSorterApplication {
    shell->pane().showSorterApplication();
}

- (void)closeSorterApplication {
    shell->pane().closeSorterApplication();
}

- (BOOL)appIsPresentInLoginItems {
    return shell->pane().appIsPresentInLoginItems();
}

- (void)showLoginItemEditFailureAlert:(NSString*)message {
    shell->pane().showLoginItemEditFailureAlert(qbsp::appkit::utf8(message));
}

- (void)appDied:(NSNotification*)notification {
    shell->appDied(notification);
}

#pragma mark - The hide list

- (void)loadHideAppData {
    shell->pane().loadHideAppData();
}

- (void)deleteFullScreenSettings {
    shell->pane().deleteFullScreenSettings();
}

- (NSInteger)indexOfAppInList:(NSString*)appName {
    return static_cast<NSInteger>(shell->pane().indexOfAppInList(qbsp::appkit::utf8(appName)));
}

#pragma mark - Recorder delegate

- (BOOL)shortcutRecorder:(id)recorder
               isKeyCode:(NSInteger)code
           andFlagsTaken:(NSUInteger)flags
                  reason:(NSString**)reason {
    return shell->isTaken(recorder, {.flags = flags, .code = code}, reason);
}

- (void)shortcutRecorder:(id)recorder keyComboDidChange:(QBSPKeyCombo)keyCombo {
    shell->keyComboDidChange(recorder, {.flags = keyCombo.flags, .code = keyCombo.code});
}

- (void)enableAttentionLabel:(id)sender {
    shell->pane().enableAttentionLabel(nullptr);
}

#pragma mark - Properties

- (NSURL*)sorterAppURL {
    return qbsp::appkit::nsURL(shell->pane().sorterAppURL());
}

- (void)setSorterAppURL:(NSURL*)url {
    shell->pane().setSorterAppURL(qbsp::appkit::urlFromNSURL(url));
}

- (QBSPRegistrar)loginItemRegistrar {
    return shell->loginItemRegistrar();
}

- (void)setLoginItemRegistrar:(QBSPRegistrar)registrar {
    shell->setLoginItemRegistrar(registrar);
}

- (BOOL)deleteFullScreenSettingsInSorter {
    return shell->pane().deleteFullScreenSettingsInSorter();
}

- (void)setDeleteFullScreenSettingsInSorter:(BOOL)isWanted {
    shell->pane().setDeleteFullScreenSettingsInSorter(isWanted);
}

- (BOOL)shouldRestartSorter {
    return shell->pane().shouldRestartSorter();
}

- (BOOL)isSorterProApp {
    return shell->pane().isSorterProApp();
}

- (BOOL)hideAppsUpdated {
    return shell->pane().hideAppsUpdated();
}

#pragma mark - NSTableViewDataSource

- (NSInteger)numberOfRowsInTableView:(NSTableView*)tableView {
    return shell->numberOfRows();
}

- (id)tableView:(NSTableView*)tableView objectValueForTableColumn:(NSTableColumn*)column row:(NSInteger)row {
    return shell->objectValue(column, row);
}

- (void)tableView:(NSTableView*)tableView
    setObjectValue:(id)value
    forTableColumn:(NSTableColumn*)column
               row:(NSInteger)row {
    shell->setObjectValue(value, column, row);
}

@end

@implementation QBSPPreferencePane (Inherited)

- (id)inheritedInitWithBundle:(NSBundle*)bundle {
    return [super initWithBundle:bundle];
}

- (void)inheritedMainViewDidLoad {
    [super mainViewDidLoad];
}

- (void)inheritedWillSelect {
    [super willSelect];
}

- (void)inheritedWillUnselect {
    [super willUnselect];
}

@end

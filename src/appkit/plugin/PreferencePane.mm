#import "appkit/plugin/PreferencePane.h"

#include "appkit/plugin/PaneShell.h"
#include "appkit/stores/UserDefaults.h"

using qbsp::appkit::PaneShell;

@implementation QBSPPreferencePane

#pragma mark - Life

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
    shell = created.release();
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(applicationWillTerminate:)
                                                 name:NSApplicationWillTerminateNotification
                                               object:nil];
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    delete shell;
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
    // Which control comes first shows once the pane has hidden those it has no use for.
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

#pragma mark - Operations of the pane itself

- (void)showSorterApplication {
    shell->pane().showSorterApplication();
}

- (void)closeSorterApplication {
    shell->pane().closeSorterApplication();
}

- (void)updateToggleButtonTitle {
    shell->pane().updateToggleButtonTitle();
}

- (void)deleteFullScreenSettings {
    shell->pane().deleteFullScreenSettings();
}

- (BOOL)appIsPresentInLoginItems {
    return shell->pane().appIsPresentInLoginItems();
}

- (NSURL*)sorterAppURL {
    return shell->sorterAppURL();
}

- (QBSPRegistrar)loginItemRegistrar {
    return shell->loginItemRegistrar();
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

#import "QBSPPreferencesWindow.h"

#import "QBSPGeneralView.h"

static const NSSize firstSize = {620, 680};
static const NSSize smallestSize = {480, 440};
static const NSSize smallestButtonSize = {84, 72};
static const CGFloat buttonPadding = 6;
static const CGFloat firstButtonX = 12;
static const CGFloat buttonGap = 6;
static const CGFloat barPadding = 6;

@interface QBSPPreferencesWindow ()
- (void)makeWindow;
- (void)makeBar;
- (NSButton*)pageButton:(NSString*)title image:(NSImage*)image action:(SEL)action;
- (void)placeButtons;
- (CGFloat)barHeight;
- (void)showPage:(NSView*)newPage;
- (void)chooseGeneral:(id)sender;
- (void)chooseSorter:(id)sender;
- (void)chainKeyViews;
- (void)mark:(NSButton*)chosen;
@end

@implementation QBSPPreferencesWindow

- (id)initWithRunner:(QBSPPaneRunner*)aRunner {
    if ((self = [super init]) != nil) {
        runner = [aRunner retain];
        general = [[QBSPGeneralView alloc] initWithFrame:NSMakeRect(0, 0, 300, 300)];
        [self makeWindow];
        [self makeBar];
        [self chooseGeneral:nil];
    }
    return self;
}

- (void)dealloc {
    [window setDelegate:nil];
    [window release];
    [general release];
    [runner release];
    [super dealloc];
}

- (void)makeWindow {
    const NSUInteger style =
        NSTitledWindowMask | NSClosableWindowMask | NSMiniaturizableWindowMask | NSResizableWindowMask;
    window = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, firstSize.width, firstSize.height)
                                         styleMask:style
                                           backing:NSBackingStoreBuffered
                                             defer:NO];
    [window setReleasedWhenClosed:NO];
    [window setContentMinSize:smallestSize];
    [window setDelegate:(id)self];
}

- (void)makeBar {
    NSImage* applicationIcon = [NSImage imageNamed:@"NSApplicationIcon"];
    generalButton = [self pageButton:@"General" image:applicationIcon action:@selector(chooseGeneral:)];
    sorterButton = [self pageButton:[runner label] image:[runner icon] action:@selector(chooseSorter:)];
    [self placeButtons];
    NSBox* line = [[[NSBox alloc]
        initWithFrame:NSMakeRect(0, firstSize.height - [self barHeight], firstSize.width, 2)] autorelease];
    [line setBoxType:NSBoxSeparator];
    [line setTitlePosition:NSNoTitle];
    [line setAutoresizingMask:NSViewWidthSizable | NSViewMinYMargin];
    [[window contentView] addSubview:line];
}

- (NSButton*)pageButton:(NSString*)title image:(NSImage*)image action:(SEL)action {
    NSButton* button = [[[NSButton alloc] initWithFrame:NSZeroRect] autorelease];
    [button setButtonType:NSPushOnPushOffButton];
    [button setBordered:YES];
    [button setBezelStyle:NSShadowlessSquareBezelStyle];
    [button setTitle:title];
    [button setImage:image];
    [button setImagePosition:NSImageAbove];
    [button setTarget:self];
    [button setAction:action];
    [button setAutoresizingMask:NSViewMinYMargin];
    [[window contentView] addSubview:button];
    return button;
}

// Side by side, all as large as the largest, which follows the system font.
- (void)placeButtons {
    const NSSize generalSize = [[generalButton cell] cellSize];
    const NSSize sorterSize = [[sorterButton cell] cellSize];
    const CGFloat widest = (CGFloat)ceil(MAX(generalSize.width, sorterSize.width)) + 2 * buttonPadding;
    const CGFloat highest = (CGFloat)ceil(MAX(generalSize.height, sorterSize.height));
    const CGFloat width = MAX(smallestButtonSize.width, widest);
    const CGFloat height = MAX(smallestButtonSize.height, highest);
    const CGFloat y = firstSize.height - barPadding - height;
    [generalButton setFrame:NSMakeRect(firstButtonX, y, width, height)];
    [sorterButton setFrame:NSMakeRect(firstButtonX + width + buttonGap, y, width, height)];
}

- (CGFloat)barHeight {
    return NSHeight([generalButton frame]) + 2 * barPadding;
}

- (void)show {
    [window center];
    [window makeKeyAndOrderFront:nil];
}

- (NSWindow*)window {
    return window;
}

- (NSButton*)generalButton {
    return generalButton;
}

- (NSButton*)sorterButton {
    return sorterButton;
}

#pragma mark - Pages

- (void)chooseGeneral:(id)sender {
    [self mark:generalButton];
    if (page == general)
        return;
    [runner willUnselect];
    [self showPage:general];
    [runner didUnselect];
    [self chainKeyViews];
}

- (void)chooseSorter:(id)sender {
    [self mark:sorterButton];
    NSView* mainView = [runner mainView];
    if (mainView == nil || page == mainView)
        return;
    [runner willSelect];
    [self showPage:mainView];
    [self chainKeyViews];
    [runner didSelect];
    [window makeFirstResponder:[[runner pane] initialKeyView]];
}

- (void)mark:(NSButton*)chosen {
    [generalButton setState:chosen == generalButton ? NSOnState : NSOffState];
    [sorterButton setState:chosen == sorterButton ? NSOnState : NSOffState];
    [window setTitle:[@"Quarrybook Preferences: " stringByAppendingString:[chosen title]]];
}

- (void)showPage:(NSView*)newPage {
    const NSSize size = [[window contentView] bounds].size;
    [page removeFromSuperview];
    page = newPage;
    [page setFrame:NSMakeRect(0, 0, size.width, size.height - [self barHeight])];
    [[window contentView] addSubview:page];
    [[window contentView] setNeedsDisplay:YES];
}

// Tab goes from the bar through the page and back.
- (void)chainKeyViews {
    NSPreferencePane* pane = [runner pane];
    const BOOL showsPane = pane != nil && page == [pane mainView];
    [generalButton setNextKeyView:sorterButton];
    [sorterButton setNextKeyView:showsPane ? [pane firstKeyView] : generalButton];
    [[pane lastKeyView] setNextKeyView:generalButton];
}

- (void)leavePane {
    [runner willUnselect];
    [runner didUnselect];
}

#pragma mark - NSWindowDelegate

- (void)windowWillClose:(NSNotification*)notification {
    [self leavePane];
    [NSApp terminate:nil];
}

@end

#include "PaneWindow.h"

#include "EventPump.h"
#include "XWindows.h"

#import <GNUstepGUI/GSDisplayServer.h>

namespace qbsp::appkit {

namespace {

NSString* const fontSizeKey = @"NSFontSize";
constexpr NSRect firstFrame = {{200, 200}, {580, 560}};

NSEvent* mouseEvent(NSEventType type, NSView* view, NSPoint point) {
    return [NSEvent mouseEventWithType:type
                              location:[view convertPoint:point toView:nil]
                         modifierFlags:0
                             timestamp:[NSDate timeIntervalSinceReferenceDate]
                          windowNumber:[[view window] windowNumber]
                               context:[[view window] graphicsContext]
                           eventNumber:0
                            clickCount:1
                              pressure:type == NSLeftMouseDown ? 1 : 0];
}

void click(NSView* view, NSPoint point) {
    // The release waits in the queue, where the loop that tracks the press looks for it.
    [NSApp postEvent:mouseEvent(NSLeftMouseUp, view, point) atStart:NO];
    [NSApp sendEvent:mouseEvent(NSLeftMouseDown, view, point)];
}

/// All tests share one: a window manager is slow to pass the keyboard from one to the next.
NSWindow* sharedWindow() {
    static NSWindow* const window =
        [[NSWindow alloc] initWithContentRect:firstFrame
                                    styleMask:NSTitledWindowMask | NSResizableWindowMask
                                      backing:NSBackingStoreBuffered
                                        defer:NO];
    [window setContentSize:firstFrame.size];
    return window;
}

bool hasKeyboard(NSWindow* window) {
    GSDisplayServer* server = GSServerForWindow(window);
    void* device = [server windowDevice:static_cast<int>([window windowNumber])];
    return recorder::XWindow([server serverDevice], reinterpret_cast<unsigned long>(device)).hasKeyboard();
}

NSEvent* keyEvent(NSEventType type, NSWindow* window, NSString* characters, NSUInteger modifiers) {
    return [NSEvent keyEventWithType:type
                            location:NSZeroPoint
                       modifierFlags:modifiers
                           timestamp:[NSDate timeIntervalSinceReferenceDate]
                        windowNumber:[window windowNumber]
                             context:[window graphicsContext]
                          characters:characters
         charactersIgnoringModifiers:characters
                           isARepeat:NO
                             keyCode:0];
}

NSData* pixels(NSView* view) {
    [view lockFocus];
    NSBitmapImageRep* bitmap = [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
    [view unlockFocus];
    return [bitmap TIFFRepresentation];
}

} // namespace

void PaneWindow::SetUp() {
    window = sharedWindow();
    listing_ = Retained<PaneListing*>::adopt([[PaneListing alloc] init]);
    makeView();
    [window makeKeyAndOrderFront:nil];
    // AppKit calls a window key before the window manager has agreed.
    ASSERT_TRUE(
        recorder::waitUntil([&] { return [NSApp isActive] && [window isKeyWindow] && hasKeyboard(window); }));
    settle();
}

void PaneWindow::TearDown() {
    [[NSUserDefaults standardUserDefaults] removeObjectForKey:fontSizeKey];
    [controls().hideAppsTable setDataSource:nil];
    [window makeFirstResponder:nil];
    [view removeFromSuperview];
}

void PaneWindow::makeView() {
    [view removeFromSuperview];
    if (view != nil)
        [controls().hideAppsTable setDataSource:nil];
    view_ = Retained<QBSPPaneView*>::adopt([[QBSPPaneView alloc] initWithFrame:NSZeroRect]);
    view = view_.get();
    [controls().attentionLabel setHidden:YES];
    setTexts([](NSString* key) { return key; });
    [controls().hideAppsTable setDataSource:static_cast<id>(listing_.get())];
    setNames({"Atlas", "Books", "Calendar", "Mail", "Maps"});
    [view setFrame:[[window contentView] bounds]];
    [[window contentView] addSubview:view];
    [view contentsDidChange];
    settle();
}

void PaneWindow::setTexts(const Translation& translate) {
    [controls().descriptionLabel
        setStringValue:translate(@"The Sorter helps to collect information from any application to specified "
                                  "groups even if a database is not available.\n\nThe Sorter appears as a "
                                  "`Quarrybook' tab attached to a screen border.")];
    [controls().availabilityLabel setStringValue:translate(@"Availability:")];
    [controls().showAtLoginCheckbox setTitle:translate(@"Start Sorter at login")];
    [controls().toggleLaunchButton setTitle:translate(@"Show")];
    [controls().visibilityLabel setStringValue:translate(@"Visibility:")];
    [controls().visibilityButton setTitle:translate(@"Full")];
    [controls().takeNoteLabel setStringValue:translate(@"Take Note Hotkey:")];
    [controls().copySelectionLabel setStringValue:translate(@"Copy Selection Hotkey:")];
    [controls().hideAppLabel setStringValue:translate(@"Hide Sorter in Full Screen:")];
    [controls().resetFullscreenSettingsButton setTitle:translate(@"Reset Fullscreen Settings")];
    [[view addButton] setTitle:translate(@"Add...")];
    NSArray* columns = [controls().hideAppsTable tableColumns];
    [[[columns objectAtIndex:0] headerCell] setStringValue:translate(@"Application")];
    [[[columns objectAtIndex:1] headerCell] setStringValue:translate(@"Hide")];
}

void PaneWindow::setFontSize(CGFloat size) {
    [[NSUserDefaults standardUserDefaults] setDouble:size forKey:fontSizeKey];
    makeView();
}

void PaneWindow::setNames(const std::vector<std::string>& names) {
    listing_.get()->names = names;
    listing_.get()->flags.assign(names.size(), false);
    [controls().hideAppsTable reloadData];
}

void PaneWindow::focus(NSView* wanted) {
    ASSERT_TRUE([window makeFirstResponder:wanted]);
    settle();
}

void PaneWindow::press(NSString* characters, NSUInteger modifiers) {
    [NSApp sendEvent:keyEvent(NSKeyDown, window, characters, modifiers)];
    [NSApp sendEvent:keyEvent(NSKeyUp, window, characters, modifiers)];
    settle();
}

void PaneWindow::pressTab() {
    press(@"\t");
}

void PaneWindow::clickAt(NSView* clicked, NSPoint point, const std::function<bool()>& effect) {
    for (int clicks = 0; clicks < 2 && !effect(); ++clicks) {
        click(clicked, point);
        settle();
    }
}

NSView* PaneWindow::focused() const {
    const id focused = [window firstResponder];
    return focused;
}

void PaneWindow::settle() {
    while (NSEvent* event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                               untilDate:[NSDate distantPast]
                                                  inMode:NSDefaultRunLoopMode
                                                 dequeue:YES])
        [NSApp sendEvent:event];
    [NSApp updateWindows];
    [window displayIfNeeded];
}

NSData* PaneWindow::shown(NSView* part) {
    settle();
    return pixels(part);
}

NSData* PaneWindow::drawnAnew(NSView* part) {
    [window display];
    return pixels(part);
}

} // namespace qbsp::appkit

#include "RecorderViewFixture.h"

#include "EventPump.h"
#include "XWindows.h"
#include "appkit/recorder/RecorderDrawing.h"

#import <GNUstepGUI/GSDisplayServer.h>

namespace qbsp::recorder {

namespace {

XWindow xWindow(NSWindow* window) {
    GSDisplayServer* server = GSServerForWindow(window);
    void* device = [server windowDevice:static_cast<int>([window windowNumber])];
    return {[server serverDevice], reinterpret_cast<unsigned long>(device)};
}

XWindow::Point screenPoint(NSView* view, NSPoint point) {
    const NSPoint inWindow = [view convertPoint:point toView:nil];
    const CGFloat height = NSHeight([[[view window] contentView] frame]);
    return xWindow([view window])
        .onScreen({static_cast<int>(inWindow.x), static_cast<int>(height - inWindow.y)});
}

/// All tests share one window: a window manager is slow to pass the keyboard from one to the next.
RecorderWindow* sharedWindow() {
    static RecorderWindow* const window = [[RecorderWindow alloc] initAtOrigin:NSMakePoint(200, 400)];
    [window fill];
    return window;
}

} // namespace

void RecorderView::SetUp() {
    window = sharedWindow();
    first = window->first;
    second = window->second;
    delegate_ =
        appkit::Retained<RecordingDelegate*>::adopt([[RecordingDelegate alloc] initWithCalls:&delegateCalls]);
    [first setDelegate:delegate_.get()];
    [second setDelegate:delegate_.get()];
    makeKey(window);
}

void RecorderView::TearDown() {
    [window empty];
}

void RecorderView::press(const std::string& keys) {
    const int before = window->keyUps;
    ASSERT_TRUE(run({"xdotool", "key", "--delay", "0", keys})) << keys;
    ASSERT_TRUE(waitUntil([&] { return window->keyUps > before; }))
        << "the window should have seen " << keys << " released";
}

void RecorderView::click(NSView* view) {
    clickAt(view, NSMakePoint(NSMidX([view bounds]), NSMidY([view bounds])));
}

void RecorderView::clickClearButton(QBSPRecorderView* view) {
    const NSRect button = clearButtonRect([view bounds]);
    clickAt(view, NSMakePoint(NSMidX(button), NSMidY(button)));
}

void RecorderView::clickAt(NSView* view, NSPoint point) {
    const XWindow::Point target = screenPoint(view, point);
    const int downs = window->mouseDowns;
    const int ups = window->mouseUps;
    ASSERT_TRUE(run({"xdotool", "mousemove", std::to_string(target.x), std::to_string(target.y)}));
    ASSERT_TRUE(run({"xdotool", "mousedown", "1", "mouseup", "1"}));
    // The window manager may hold the press back until after the release.
    ASSERT_TRUE(waitUntil([&] { return window->mouseDowns > downs && window->mouseUps > ups; }))
        << "the window should have seen a press and a release, and saw " << window->mouseDowns - downs
        << " and " << window->mouseUps - ups;
}

void RecorderView::focus(NSView* view) {
    ASSERT_TRUE([window makeFirstResponder:view]);
}

void RecorderView::armFirst() {
    focus(first);
    press("space");
    ASSERT_TRUE([first isListening]);
}

void RecorderView::makeKey(NSWindow* other) {
    [other makeKeyAndOrderFront:nil];
    ASSERT_TRUE(waitUntil([&] {
        return [NSApp isActive] && [other isKeyWindow] && xWindow(other).hasKeyboard();
    })) << "keys should go to the window; active, key, with keyboard: "
        << [NSApp isActive] << [other isKeyWindow] << xWindow(other).hasKeyboard();
}

bool RecorderView::isSentNoReleaseOfHeldKeys() const {
    return xWindow(window).isSentNoReleaseOfHeldKeys();
}

KeyCombo RecorderView::comboOf(QBSPRecorderView* view) const {
    return {.flags = [view flags], .code = [view keyCode]};
}

std::string RecorderView::reason() const {
    return text([window->reasonField stringValue]);
}

std::string text(NSString* string) {
    return string == nil ? "" : [string UTF8String];
}

NSData* picture(NSView* view) {
    [view lockFocus];
    NSBitmapImageRep* bitmap = [[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]];
    [view unlockFocus];
    return [[bitmap autorelease] TIFFRepresentation];
}

void useSecondLayout(NSWindow* window) {
    xWindow(window).useSecondLayout();
}

} // namespace qbsp::recorder

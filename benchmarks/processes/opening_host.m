// opening_host PANE [--stay]: shows the pane of that bundle in a window, prints what each step took, in
// milliseconds on the clock and of a processor since the program began, and ends; or stays open.

#import <AppKit/AppKit.h>
#import <PreferencePanes/NSPreferencePane.h>

#include <stdio.h>
#include <stdlib.h>
#include <time.h>
#include <unistd.h>

static double milliseconds(clockid_t clock) {
    struct timespec now;
    clock_gettime(clock, &now);
    return (double)now.tv_sec * 1e3 + (double)now.tv_nsec / 1e6;
}

static double lastReal;
static double lastUsed;

/// Prints what passed since the last step.
static void step(const char* name) {
    const double real = milliseconds(CLOCK_MONOTONIC);
    const double used = milliseconds(CLOCK_PROCESS_CPUTIME_ID);
    printf("%s %.3f %.3f\n", name, real - lastReal, used - lastUsed);
    lastReal = real;
    lastUsed = used;
}

static NSPreferencePane* loadedPane(NSString* path) {
    NSBundle* bundle = [NSBundle bundleWithPath:path];
    Class class = [bundle principalClass];
    return [[class alloc] initWithBundle:bundle];
}

/// A window as hosts of panes have one: a bar with an icon and a title, and room for a pane.
static NSWindow* shownWindow(void) {
    const NSRect frame = NSMakeRect(50, 50, 600, 700);
    NSWindow* window = [[NSWindow alloc] initWithContentRect:frame
                                                   styleMask:NSTitledWindowMask
                                                     backing:NSBackingStoreBuffered
                                                       defer:NO];
    NSButton* button = [[[NSButton alloc] initWithFrame:NSMakeRect(10, 620, 90, 70)] autorelease];
    [button setTitle:@"Opened"];
    [button setImage:[NSImage imageNamed:@"NSApplicationIcon"]];
    [button setImagePosition:NSImageAbove];
    [[window contentView] addSubview:button];
    [window makeKeyAndOrderFront:nil];
    [window display];
    return window;
}

static NSTableView* tableIn(NSView* view) {
    if ([view isKindOfClass:[NSTableView class]])
        return (NSTableView*)view;
    NSTableView* table = nil;
    for (NSView* part in [view subviews])
        if (table == nil)
            table = tableIn(part);
    return table;
}

/// Far apart, so that every row that is seen is another one than before.
static void scroll(NSWindow* window, NSInteger places) {
    NSTableView* table = tableIn([window contentView]);
    const NSInteger rows = [table numberOfRows];
    for (NSInteger place = 0; place < places && rows > 0; ++place) {
        [table scrollRowToVisible:place * 7919 % rows];
        [window displayIfNeeded];
    }
}

@interface OpeningHost : NSObject
@end

@implementation OpeningHost

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    NSWindow* window = shownWindow();
    step("host");
    NSUserDefaults* options = [NSUserDefaults standardUserDefaults];
    NSPreferencePane* pane = loadedPane([options stringForKey:@"Pane"]);
    if (pane == nil)
        exit(1);
    step("load");
    NSView* view = [pane loadMainView];
    step("view");
    [pane willSelect];
    step("select");
    [[window contentView] addSubview:[pane mainView] != nil ? [pane mainView] : view];
    [window display];
    [[window graphicsContext] flushGraphics];
    [pane didSelect];
    step("draw");
    scroll(window, [options integerForKey:@"Scrolls"]);
    step("scroll");
    fflush(stdout);
    if (![options boolForKey:@"Stays"])
        _exit(0);
}

@end

int main(void) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    lastReal = milliseconds(CLOCK_MONOTONIC);
    OpeningHost* host = [[OpeningHost alloc] init];
    [NSApplication sharedApplication];
    [NSApp setDelegate:(id)host];
    [NSApp run];
    [pool release];
    return 0;
}

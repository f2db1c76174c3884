// A sandboxed host that shows the recorder that the pane hides in it: revealing_host -Pane PATH
#import <AppKit/AppKit.h>
#import <PreferencePanes/PreferencePanes.h>

@interface RevealingHost : NSApplication
- (BOOL)isSandboxed;
@end

@implementation RevealingHost

- (BOOL)isSandboxed {
    return YES;
}

@end

static NSPreferencePane* loadedPane(NSString* path) {
    NSBundle* bundle = [NSBundle bundleWithPath:path];
    NSPreferencePane* pane = [[[bundle principalClass] alloc] initWithBundle:bundle];
    [pane loadMainView];
    return pane;
}

static void reveal(NSPreferencePane* pane) {
    NSView* view = [pane mainView];
    NSWindow* window = [[NSWindow alloc] initWithContentRect:[view frame]
                                                   styleMask:NSTitledWindowMask
                                                     backing:NSBackingStoreBuffered
                                                       defer:NO];
    [window setTitle:@"Revealed"];
    [window setContentView:view];
    [pane willSelect];
    [[view valueForKey:@"clipHotKeyRecorder"] setHidden:NO];
    [window makeFirstResponder:[view valueForKey:@"clipHotKeyRecorder"]];
    [window makeKeyAndOrderFront:nil];
}

int main(void) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSString* path = [[NSUserDefaults standardUserDefaults] stringForKey:@"Pane"];
    [RevealingHost sharedApplication];
    [NSApp finishLaunching];
    reveal(loadedPane(path));
    [NSApp run];
    [pool release];
    return 0;
}

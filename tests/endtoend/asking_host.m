// A sandboxed host that asks the plug-in's principal class for the pane's operations by name, and prints the
// answers: asking_host -Pane PATH
#import <AppKit/AppKit.h>
#import <PreferencePanes/PreferencePanes.h>

#include <stdio.h>

@interface AskingHost : NSApplication
- (BOOL)isSandboxed;
@end

@implementation AskingHost

- (BOOL)isSandboxed {
    return YES;
}

@end

@interface NSPreferencePane (Operations)
- (void)showSorterApplication;
- (void)closeSorterApplication;
- (void)updateToggleButtonTitle;
- (void)deleteFullScreenSettings;
- (BOOL)appIsPresentInLoginItems;
- (NSURL*)sorterAppURL;
- (id)loginItemRegistrar;
@end

static void tell(const char* name, NSString* answer) {
    printf("%s: %s\n", name, [answer UTF8String]);
}

static void ask(NSPreferencePane* pane) {
    NSButton* button = [[pane mainView] valueForKey:@"toggleLaunchButton"];
    [button setTitle:@""];
    [pane updateToggleButtonTitle];
    tell("updateToggleButtonTitle", [button title]);
    tell("appIsPresentInLoginItems", [pane appIsPresentInLoginItems] ? @"YES" : @"NO");
    tell("sorterAppURL", [[[pane sorterAppURL] path] lastPathComponent]);
    tell("loginItemRegistrar", [[pane loginItemRegistrar] description]);
    [pane deleteFullScreenSettings];
    [pane showSorterApplication];
    [pane closeSorterApplication];
}

int main(void) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSBundle* bundle = [NSBundle bundleWithPath:[[NSUserDefaults standardUserDefaults] stringForKey:@"Pane"]];
    [AskingHost sharedApplication];
    NSPreferencePane* pane = [[[bundle principalClass] alloc] initWithBundle:bundle];
    [pane loadMainView];
    [pane willSelect];
    ask(pane);
    [pane willUnselect];
    [pane release];
    [pool release];
    return 0;
}

// A sandboxed host that sends the plug-in's principal class the pane's operations, and prints what they
// return: asking_host -Pane PATH
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

static void print(const char* name, NSString* result) {
    printf("%s: %s\n", name, [result UTF8String]);
}

static void ask(NSPreferencePane* pane) {
    NSButton* button = [[pane mainView] valueForKey:@"toggleLaunchButton"];
    [button setTitle:@""];
    [pane updateToggleButtonTitle];
    print("updateToggleButtonTitle", [button title]);
    print("appIsPresentInLoginItems", [pane appIsPresentInLoginItems] ? @"YES" : @"NO");
    print("sorterAppURL", [[[pane sorterAppURL] path] lastPathComponent]);
    print("loginItemRegistrar", [[pane loginItemRegistrar] description]);
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

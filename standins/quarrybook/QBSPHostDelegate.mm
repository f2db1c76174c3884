#import "QBSPHostDelegate.h"

#include "Options.h"
#import "Picture.h"
#include "WindowManager.h"

#include <cstdio>

static NSString* const paneName = @"SorterPane.prefPane";

@interface QBSPHostDelegate ()
- (void)makeMenu;
- (void)loadSorterPlugin;
- (NSString*)panePath;
- (void)sayWhatTheDisplayLacks;
- (void)play;
- (void)takePictureAndQuit;
@end

@implementation QBSPHostDelegate

- (id)initWithCommandLine:(const quarrybook::Options*)theOptions {
    if ((self = [super init]) != nil)
        options = theOptions;
    return self;
}

- (void)dealloc {
    [player release];
    [preferences release];
    [runner release];
    [super dealloc];
}

#pragma mark - NSApplicationDelegate

- (void)applicationWillFinishLaunching:(NSNotification*)notification {
    [self makeMenu];
    if (options->withSorterPlugin && !options->sandboxed)
        [self loadSorterPlugin];
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    runner = [[QBSPPaneRunner alloc] initWithBundlePath:[self panePath]];
    if ([runner problem] != nil) {
        std::fprintf(stderr, "Quarrybook: %s: %s\n", [[self panePath] UTF8String],
                     [[runner problem] UTF8String]);
        QBSPQuitWithStatus(2);
        return;
    }
    preferences = [[QBSPPreferencesWindow alloc] initWithRunner:runner];
    [preferences show];
    [self sayWhatTheDisplayLacks];
    if (options->scenario)
        [self play];
    else
        [[preferences sorterButton] performClick:nil];
    if (options->picture && !options->scenario)
        [self performSelector:@selector(takePictureAndQuit) withObject:nil afterDelay:0];
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    [preferences leavePane];
}

#pragma mark - Starting

- (void)makeMenu {
    NSMenu* menu = [[[NSMenu alloc] initWithTitle:@"Quarrybook"] autorelease];
    [menu addItemWithTitle:@"Hide" action:@selector(hide:) keyEquivalent:@"h"];
    [menu addItemWithTitle:@"Quit" action:@selector(terminate:) keyEquivalent:@"q"];
    [NSApp setMainMenu:menu];
}

- (void)loadSorterPlugin {
    NSString* plugins = [[[NSBundle mainBundle] bundlePath] stringByAppendingPathComponent:@"PlugIns"];
    NSString* path = [plugins stringByAppendingPathComponent:@"SorterPlugin.bundle"];
    [[NSBundle bundleWithPath:path] load];
}

- (NSString*)panePath {
    if (options->pane)
        return [NSString stringWithUTF8String:options->pane->c_str()];
    // The application is in build/bin, the pane in build.
    NSString* programs = [[[NSBundle mainBundle] bundlePath] stringByDeletingLastPathComponent];
    return [[programs stringByDeletingLastPathComponent] stringByAppendingPathComponent:paneName];
}

- (void)sayWhatTheDisplayLacks {
    if (!quarrybook::hasWindowManager())
        std::fputs(
            "Quarrybook: no window manager runs on this display: windows have no frames to move or close "
            "them by, and may not get the keyboard\n",
            stderr);
}

#pragma mark - Scenario and picture

- (void)play {
    player = [[QBSPScenarioPlayer alloc] initWithFile:options->scenario->c_str()
                                          preferences:preferences
                                               runner:runner];
    if (player == nil)
        QBSPQuitWithStatus(2);
    else
        [player playAndSend:@selector(takePictureAndQuit) to:self];
}

- (void)takePictureAndQuit {
    const bool taken =
        !options->picture || quarrybook::writePicture([preferences window], *options -> picture);
    if (!taken)
        std::fprintf(stderr, "Quarrybook: %s: could not be written\n", options->picture->c_str());
    QBSPQuitWithStatus(taken ? 0 : 1);
}

@end

#pragma once

#import <AppKit/AppKit.h>
#import <PreferencePanes/NSPreferencePane.h>

/// Loads a preference pane from its bundle and drives it through its life, each step once and in order.
@interface QBSPPaneRunner : NSObject {
    NSBundle* bundle;
    NSPreferencePane* pane;
    BOOL shown;
}

/// Nothing is loaded yet.
- (id)initWithBundlePath:(NSString*)path;

/// Why the bundle cannot be used, or nil.
- (NSString*)problem;

/// The name and the picture that the bundle gives itself; the picture may be nil.
- (NSString*)label;
- (NSImage*)icon;

/// Makes the pane and loads its view, the first time.
- (NSView*)mainView;

/// Before and after the view appears, and before and after it goes. Each does nothing when it is not its
/// turn.
- (void)willSelect;
- (void)didSelect;
- (void)willUnselect;
- (void)didUnselect;

- (NSPreferencePane*)pane;

@end

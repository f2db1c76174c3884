#pragma once

#import <AppKit/AppKit.h>
#import <PreferencePanes/NSPreferencePane.h>

/// Loads a preference pane from its bundle and sends it the messages of its life cycle, each once and in
/// order.
@interface QBSPPaneRunner : NSObject {
    NSBundle* bundle;
    NSPreferencePane* pane;
    BOOL shown;
}

/// Loads nothing yet.
- (id)initWithBundlePath:(NSString*)path;

/// Why the bundle cannot be used, or nil.
- (NSString*)problem;

/// The bundle's label and icon; the icon may be nil.
- (NSString*)label;
- (NSImage*)icon;

/// The pane's main view. The first call creates the pane and loads the view.
- (NSView*)mainView;

/// Must be called before and after the view appears, and before and after it disappears. The last three do
/// nothing while the pane is not shown.
- (void)willSelect;
- (void)didSelect;
- (void)willUnselect;
- (void)didUnselect;

- (NSPreferencePane*)pane;

@end

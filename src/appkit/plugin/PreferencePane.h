#pragma once

#import "appkit/services/PreferencePaneBase.h"
#import "appkit/services/SorterControlProtocol.h"

#import <AppKit/AppKit.h>
#import <PreferencePanes/NSPreferencePane.h>

namespace qbsp::appkit {
class PaneShell;
}

/// The principal class of the plug-in. It hands every message of the host and of the view on to the pane.
__attribute__((visibility("default")))
@interface QBSPPreferencePane : NSPreferencePane {
    qbsp::appkit::PaneShell* shell;
}

/// The start/stop button, the reset button and the add button.
- (IBAction)toggleSorterProcess:(id)sender;
- (IBAction)resetFullscreenSettings:(id)sender;
- (IBAction)addHideApp:(id)sender;

/// What else the pane does for who asks it by name. They do the same as the pane's operations of these names.
- (void)showSorterApplication;
- (void)closeSorterApplication;
- (void)updateToggleButtonTitle;
- (void)deleteFullScreenSettings;
- (BOOL)appIsPresentInLoginItems;
- (NSURL*)sorterAppURL;
- (QBSPRegistrar)loginItemRegistrar;

@end

@interface QBSPPreferencePane (Inherited) <QBSPInheritedMessages>
@end

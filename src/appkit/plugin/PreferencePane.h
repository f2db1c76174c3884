#pragma once

#import "appkit/services/PreferencePaneBase.h"
#import "appkit/services/SorterControlProtocol.h"

#import <AppKit/AppKit.h>
#import <PreferencePanes/NSPreferencePane.h>

#include <memory>

namespace qbsp::appkit {
class PaneShell;
}

/// A key combination: the platform's modifier flags, and the Mac's virtual key code, -1 for no key.
struct QBSPKeyCombo {
    NSUInteger flags;
    NSInteger code;
};

/// The principal class of the plug-in. It forwards every message from the host, the view and the platform to
/// the pane, whose operations have the same names.
__attribute__((visibility("default")))
@interface QBSPPreferencePane : NSPreferencePane {
    std::unique_ptr<qbsp::appkit::PaneShell> shell;
}

- (IBAction)toggleSorterProcess:(id)sender;
- (IBAction)resetFullscreenSettings:(id)sender;
- (IBAction)addHideApp:(id)sender;

- (void)updateToggleButtonTitle;
- (void)showSorterApplication;
- (void)closeSorterApplication;
- (BOOL)appIsPresentInLoginItems;
- (void)showLoginItemEditFailureAlert:(NSString*)message;

/// The notification has the bundle identifier of the application that terminated.
- (void)appDied:(NSNotification*)notification;

- (void)loadHideAppData;
- (void)deleteFullScreenSettings;
- (NSInteger)indexOfAppInList:(NSString*)appName;

/// The recorder delegate's messages. A recorder that is neither of the view's two changes no stored hot key.
/// The reason may be NULL.
- (BOOL)shortcutRecorder:(id)recorder
               isKeyCode:(NSInteger)code
           andFlagsTaken:(NSUInteger)flags
                  reason:(NSString**)reason;
- (void)shortcutRecorder:(id)recorder keyComboDidChange:(QBSPKeyCombo)keyCombo;
- (void)enableAttentionLabel:(id)sender;

/// The Sorter's bundle; nil when it is not known.
- (NSURL*)sorterAppURL;
- (void)setSorterAppURL:(NSURL*)url;

/// The host's registrar, which is not retained; nil when there is none.
- (QBSPRegistrar)loginItemRegistrar;
- (void)setLoginItemRegistrar:(QBSPRegistrar)registrar;

/// YES requests a reset of the full-screen settings right after the Sorter is next stopped from the pane.
- (BOOL)deleteFullScreenSettingsInSorter;
- (void)setDeleteFullScreenSettingsInSorter:(BOOL)isWanted;

- (BOOL)shouldRestartSorter;
- (BOOL)isSorterProApp;
- (BOOL)hideAppsUpdated;

@end

@interface QBSPPreferencePane (Inherited) <QBSPInheritedMessages>
@end

#pragma once

#include "PaneHost.h"
#include "RealSession.h"

#import <PreferencePanes/NSPreferencePane.h>

struct KeyCombo {
    NSUInteger flags;
    NSInteger code;
};

/// The pane's operations, as a host knows them that does not link against the plug-in.
@interface NSPreferencePane (Operations)
- (void)toggleSorterProcess:(id)sender;
- (void)loadHideAppData;
- (NSInteger)indexOfAppInList:(NSString*)name;
- (NSInteger)numberOfRowsInTableView:(NSTableView*)table;
- (void)tableView:(NSTableView*)table
    setObjectValue:(id)value
    forTableColumn:(NSTableColumn*)column
               row:(NSInteger)row;
- (void)appDied:(NSNotification*)notification;
- (void)showLoginItemEditFailureAlert:(NSString*)message;
- (BOOL)shortcutRecorder:(id)recorder
               isKeyCode:(NSInteger)code
           andFlagsTaken:(NSUInteger)flags
                  reason:(NSString**)reason;
- (void)shortcutRecorder:(id)recorder keyComboDidChange:(KeyCombo)keyCombo;
- (void)enableAttentionLabel:(id)sender;
- (void)deleteFullScreenSettings;
- (void)updateToggleButtonTitle;
@end

extern NSString* const hideListKey;

/// Stores the value as another process does.
void store(id value, NSString* key, NSString* domain);

/// What another process reads.
[[nodiscard]] id stored(NSString* key, NSString* domain);

/// A hide list of one application, ticked.
[[nodiscard]] NSDictionary* hideFlags(NSString* name);

/// A pane that was made from the loaded bundle, in a host of the ordinary build with a registrar.
class LoadedPane : public RealSession {
protected:
    LoadedPane();
    ~LoadedPane() override;

    [[nodiscard]] NSString* buttonTitle() const {
        return [[[pane mainView] valueForKey:@"toggleLaunchButton"] title];
    }

    NSPreferencePane* const pane;
};

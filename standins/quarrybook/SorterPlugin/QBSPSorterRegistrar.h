#pragma once

#import <Foundation/Foundation.h>

/// The host's registrar: manages the Sorter's login item, and starts and stops the Sorter of the host's
/// edition. For tests: while QUARRYBOOK_REGISTRAR_REFUSES is set in the environment, it changes no login item
/// and returns NO.
@interface QBSPSorterRegistrar : NSObject

/// YES when the application at that URL is among the user's login items and not switched off there.
- (BOOL)applicationIsRegistered:(NSURL*)applicationURL;

/// Adds the application to the login items. YES when it is there afterwards.
- (BOOL)registerApplication:(NSURL*)applicationURL;

/// Removes the application from the login items. YES when it is not there afterwards.
- (BOOL)unregisterApplication:(NSURL*)applicationURL;

/// Prints on standard output that the system's accounts preferences were requested.
- (void)showAccountsSystemPreferencePane;

/// Starts the Sorter unless it is running. Returns at once.
- (void)showSorterApplication;

/// Asks the Sorter to quit. Returns at once.
- (void)closeSorterApplication;

@end

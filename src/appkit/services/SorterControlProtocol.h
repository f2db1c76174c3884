#pragma once

#import <Foundation/Foundation.h>

/// What the host's registrar answers. All of it is required.
@protocol QBSPSorterControl <NSObject>
- (BOOL)applicationIsRegistered:(NSURL*)applicationURL;
- (BOOL)registerApplication:(NSURL*)applicationURL;
- (BOOL)unregisterApplication:(NSURL*)applicationURL;
- (void)showAccountsSystemPreferencePane;
- (void)showSorterApplication;
- (void)closeSorterApplication;
@end

/// The registrar object. The pane knows it by a class of the protocol's name.
using QBSPRegistrar = id<QBSPSorterControl>;

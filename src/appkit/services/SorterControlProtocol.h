#pragma once

#import <Foundation/Foundation.h>

/// What the host's registrar implements. All methods are required.
@protocol QBSPSorterControl <NSObject>
- (BOOL)applicationIsRegistered:(NSURL*)applicationURL;
- (BOOL)registerApplication:(NSURL*)applicationURL;
- (BOOL)unregisterApplication:(NSURL*)applicationURL;
- (void)showAccountsSystemPreferencePane;
- (void)showSorterApplication;
- (void)closeSorterApplication;
@end

/// The registrar object. The core represents it by a C++ class with the protocol's name.
using QBSPRegistrar = id<QBSPSorterControl>;

#import "appkit/services/cocoa/QBSPTerminationReceiver.h"

#include "appkit/bridge/Strings.h"

#import <AppKit/AppKit.h>

#include <utility>

static NSString* const bundleIdentifier = @"NSApplicationBundleIdentifier";

@implementation QBSPTerminationReceiver

- (id)initWithObserver:(std::weak_ptr<qbsp::platform::TerminationObserver>)anObserver {
    if ((self = [super init]) != nil)
        observer = std::move(anObserver);
    return self;
}

- (void)applicationTerminated:(NSNotification*)notification {
    NSDictionary* userInfo = [notification userInfo];
    id identifier = [userInfo objectForKey:bundleIdentifier];
    if (![identifier isKindOfClass:[NSString class]])
        identifier = [[userInfo objectForKey:NSWorkspaceApplicationKey] bundleIdentifier];
    qbsp::platform::Notification report;
    if (identifier != nil)
        report.userInfo.emplace(qbsp::appkit::utf8(bundleIdentifier), qbsp::appkit::utf8(identifier));
    if (const auto receiver = observer.lock())
        receiver->appDied(report);
}

@end

#import "appkit/cocoa/QBSPTerminationReceiver.h"

#include "appkit/Strings.h"

#import <AppKit/AppKit.h>

@implementation QBSPTerminationReceiver

- (id)initWithObserver:(std::weak_ptr<qbsp::platform::TerminationObserver>)anObserver {
    if ((self = [super init]) != nil)
        observer = std::move(anObserver);
    return self;
}

- (void)applicationTerminated:(NSNotification*)notification {
    NSRunningApplication* application = [[notification userInfo] objectForKey:NSWorkspaceApplicationKey];
    qbsp::platform::Notification report;
    if (NSString* identifier = [application bundleIdentifier])
        report.userInfo.emplace("NSApplicationBundleIdentifier", qbsp::appkit::utf8(identifier));
    if (const auto receiver = observer.lock())
        receiver->appDied(report);
}

@end

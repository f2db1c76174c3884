#import "appkit/services/cocoa/QBSPTerminationReceiver.h"

#include "appkit/bridge/Strings.h"

#include <utility>

namespace qbsp::appkit {

struct TerminationReceiverParts {
    std::weak_ptr<platform::TerminationObserver> observer;
};

} // namespace qbsp::appkit

@implementation QBSPTerminationReceiver

- (id)initWithObserver:(std::weak_ptr<qbsp::platform::TerminationObserver>)anObserver {
    if ((self = [super init]) != nil) {
        parts = std::make_unique<qbsp::appkit::TerminationReceiverParts>();
        parts->observer = std::move(anObserver);
    }
    return self;
}

- (void)applicationTerminated:(NSNotification*)notification {
    const char* const key = qbsp::platform::NSApplicationBundleIdentifier;
    id identifier = [[notification userInfo] objectForKey:qbsp::appkit::nsString(key)];
    qbsp::platform::Notification report;
    if ([identifier isKindOfClass:[NSString class]])
        report.userInfo.emplace(key, qbsp::appkit::utf8(identifier));
    if (const auto observer = parts->observer.lock())
        observer->appDied(report);
}

@end

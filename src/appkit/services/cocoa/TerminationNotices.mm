#include "appkit/services/TerminationNotices.h"

#include "appkit/bridge/Strings.h"
#include "appkit/services/cocoa/QBSPTerminationReceiver.h"

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

TerminationNotices::TerminationNotices(std::weak_ptr<platform::TerminationObserver> observer,
                                       platform::NotificationName name)
    : observer_(std::move(observer)), receiver_(Retained<QBSPTerminationReceiver*>::adopt(
                                          [[QBSPTerminationReceiver alloc] initWithObserver:observer_])) {
    [[[NSWorkspace sharedWorkspace] notificationCenter] addObserver:receiver_.get()
                                                           selector:@selector(applicationTerminated:)
                                                               name:nsString(name.text)
                                                             object:nil];
}

TerminationNotices::~TerminationNotices() {
    [[[NSWorkspace sharedWorkspace] notificationCenter] removeObserver:receiver_.get()];
}

} // namespace qbsp::appkit

#include "appkit/services/TerminationNotices.h"

#include "appkit/bridge/Strings.h"
#include "appkit/services/gnustep/QBSPTerminationReceiver.h"

namespace qbsp::appkit {

TerminationNotices::TerminationNotices(std::weak_ptr<platform::TerminationObserver> observer,
                                       platform::NotificationName name)
    : observer_(std::move(observer)),
      receiver_(Retained<QBSPTerminationReceiver*>::adopt(
          [[QBSPTerminationReceiver alloc] initWithObserver:observer_ name:nsString(name.text)])) {}

TerminationNotices::~TerminationNotices() {
    [receiver_.get() invalidate];
}

} // namespace qbsp::appkit

#pragma once

#include "appkit/bridge/Retained.h"
#include "platform/Name.h"
#include "platform/Workspace.h"

#import <Foundation/Foundation.h>

#include <memory>

@class QBSPTerminationReceiver;

namespace qbsp::appkit {

/// Delivers the workspace's notifications of terminated applications to one observer, as long as this exists.
/// Each termination is reported once, with the bundle identifier, after the process has gone.
class TerminationNotices {
public:
    TerminationNotices(std::weak_ptr<platform::TerminationObserver> observer,
                       platform::NotificationName name);
    ~TerminationNotices();

    TerminationNotices(const TerminationNotices&) = delete;
    TerminationNotices& operator=(const TerminationNotices&) = delete;

    [[nodiscard]] const std::weak_ptr<platform::TerminationObserver>& observer() const { return observer_; }

private:
    std::weak_ptr<platform::TerminationObserver> observer_;
    Retained<QBSPTerminationReceiver*> receiver_;
};

} // namespace qbsp::appkit

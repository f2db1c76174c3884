#pragma once

#include "platform/Name.h"
#include "platform/Value.h"

#include <optional>
#include <string>

namespace qbsp::platform {

/// How a notification is delivered.
enum class NotificationOptions : unsigned { deliverImmediately = 1 };

/// Notifies other processes.
class DistributedNotificationCenter {
public:
    virtual ~DistributedNotificationCenter() = default;

    /// Posts the notification to its observers in all processes; does nothing when there are none. A failure
    /// is not reported.
    virtual void postNotificationName(NotificationName name, const std::string& object,
                                      const std::optional<Dictionary>& userInfo,
                                      NotificationOptions options) = 0;
};

} // namespace qbsp::platform

#pragma once

#include "platform/Name.h"
#include "platform/Value.h"

#include <optional>
#include <string>

namespace qbsp::platform {

/// How a notification is delivered.
enum class NotificationOptions : unsigned { deliverImmediately = 1 };

/// Tells other processes that something happened.
class DistributedNotificationCenter {
public:
    virtual ~DistributedNotificationCenter() = default;

    /// Posts the notification to whoever listens, in any process; harmless when nobody does. Never fails.
    virtual void postNotificationName(NotificationName name, const std::string& object,
                                      const std::optional<Dictionary>& userInfo,
                                      NotificationOptions options) = 0;
};

} // namespace qbsp::platform

#pragma once

#include "platform/DistributedNotificationCenter.h"

#include <memory>
#include <string>

namespace qbsp::contracts {

/// A notification as a listener receives it.
struct Received {
    std::string name;
    std::string object;
    std::optional<platform::Dictionary> userInfo;
};

/// The distributed notification centre, and a listener of the names "First" and "Second".
class NotificationsStage {
public:
    static std::unique_ptr<NotificationsStage> simulated();
    static std::unique_ptr<NotificationsStage> appKit();

    virtual ~NotificationsStage() = default;

    [[nodiscard]] virtual platform::DistributedNotificationCenter& notifications() = 0;

    /// True when the next notification that the listener receives is that one. Booleans may arrive as
    /// numbers.
    [[nodiscard]] virtual bool receivesNext(const Received& expected) = 0;
};

} // namespace qbsp::contracts

#pragma once

#include "platform/DistributedNotificationCenter.h"

#include <memory>
#include <string>

namespace qbsp::contracts {

/// A notification as a listener gets it.
struct Heard {
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

    /// True when the listener gets that notification next. Booleans may arrive as numbers.
    [[nodiscard]] virtual bool hears(const Heard& expected) = 0;
};

} // namespace qbsp::contracts

#pragma once

#include "platform/DistributedNotificationCenter.h"
#include "platform/Log.h"

namespace qbsp::appkit {

/// The default distributed notification centre. A post that fails because the centre's daemon died is made
/// once more, which starts the daemon anew; if that fails too, it is logged. So is a post to a daemon that
/// does not start or does not read; nobody waits for one. What is posted while something waits to be saved is
/// posted again once that was saved.
class AppKitDistributedNotificationCenter final : public platform::DistributedNotificationCenter {
public:
    /// The log must outlive this.
    explicit AppKitDistributedNotificationCenter(platform::Log& log);

    void postNotificationName(platform::NotificationName name, const std::string& object,
                              const std::optional<platform::Dictionary>& userInfo,
                              platform::NotificationOptions options) override;

private:
    platform::Log& log_;
};

} // namespace qbsp::appkit

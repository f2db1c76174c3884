#pragma once

#include "platform/Workspace.h"

#include <memory>
#include <vector>

namespace qbsp::appkit {

class TerminationNotices;

/// The shared workspace. Used on the main thread, whose run loop brings the notices.
class AppKitWorkspace final : public platform::Workspace {
public:
    AppKitWorkspace();
    ~AppKitWorkspace() override;

    AppKitWorkspace(const AppKitWorkspace&) = delete;
    AppKitWorkspace& operator=(const AppKitWorkspace&) = delete;

    void addObserver(const std::weak_ptr<platform::TerminationObserver>& observer,
                     platform::NotificationName name) override;

    void removeObserver(const platform::TerminationObserver& observer) override;

    [[nodiscard]] platform::LaunchResult launchApplicationAtURL(const platform::URL& url,
                                                                platform::LaunchOptions options) override;

private:
    std::vector<std::unique_ptr<TerminationNotices>> notices_;
};

} // namespace qbsp::appkit

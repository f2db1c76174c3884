#include "appkit/services/Applications.h"

#include "appkit/services/ApplicationLaunch.h"
#include "appkit/services/TerminationNotices.h"

namespace qbsp::appkit {

AppKitWorkspace::AppKitWorkspace() = default;

AppKitWorkspace::~AppKitWorkspace() = default;

void AppKitWorkspace::addObserver(const std::weak_ptr<platform::TerminationObserver>& observer,
                                  platform::NotificationName name) {
    notices_.push_back(std::make_unique<TerminationNotices>(observer, name));
}

void AppKitWorkspace::removeObserver(const platform::TerminationObserver& observer) {
    std::erase_if(notices_, [&](const auto& notices) {
        const auto receiver = notices->observer().lock();
        return receiver == nullptr || receiver.get() == &observer;
    });
}

platform::LaunchResult AppKitWorkspace::launchApplicationAtURL(const platform::URL& url,
                                                               platform::LaunchOptions options) {
    return launchApplication(url, options);
}

} // namespace qbsp::appkit

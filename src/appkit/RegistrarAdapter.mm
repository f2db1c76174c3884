#include "appkit/RegistrarAdapter.h"

#include "appkit/URLs.h"

namespace qbsp::appkit {

bool RegistrarAdapter::applicationIsRegistered(const std::optional<platform::URL>& application) {
    return [registrar_ applicationIsRegistered:nsURL(application)];
}

bool RegistrarAdapter::registerApplication(const std::optional<platform::URL>& application) {
    return [registrar_ registerApplication:nsURL(application)];
}

bool RegistrarAdapter::unregisterApplication(const std::optional<platform::URL>& application) {
    return [registrar_ unregisterApplication:nsURL(application)];
}

void RegistrarAdapter::showAccountsSystemPreferencePane() {
    [registrar_ showAccountsSystemPreferencePane];
}

void RegistrarAdapter::showSorterApplication() {
    [registrar_ showSorterApplication];
}

void RegistrarAdapter::closeSorterApplication() {
    [registrar_ closeSorterApplication];
}

} // namespace qbsp::appkit

#include "appkit/services/Registrar.h"

#include "appkit/bridge/Strings.h"
#include "appkit/bridge/URLs.h"

/// The compiler registers a protocol with the runtime only if code refers to it, and hosts look it up by
/// name.
[[gnu::used]] static Protocol* registrarProtocol() {
    return @protocol(QBSPSorterControl);
}

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

QBSPSorterControl* AppKitLoaderClass::defaultLoader() {
    // By name, because the class belongs to the host and nothing here links against it.
    SEL defaultLoader = NSSelectorFromString(@"defaultLoader");
    const bool responds = [static_cast<id>(loader_) respondsToSelector:defaultLoader];
    id registrar = responds ? [static_cast<id>(loader_) performSelector:defaultLoader] : nil;
    return registrar == nil ? nullptr : &registrar_.emplace(registrar);
}

platform::LoaderClass* AppKitRuntime::classFromString(platform::ClassName name) {
    Class found = NSClassFromString(nsString(name.text));
    return found == Nil ? nullptr : &found_.emplace(found);
}

} // namespace qbsp::appkit

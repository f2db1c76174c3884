#include "pane/QBSPPreferencePane.h"
#include "platform/Bundles.h"
#include "platform/Host.h"
#include "platform/LaunchServices.h"
#include "platform/Log.h"
#include "platform/PreferencePaneBase.h"
#include "platform/Runtime.h"
#include "platform/UserDefaults.h"
#include "settings/SorterStores.h"

namespace qbsp {

namespace {

/// The host's class that hands out the registrar.
constexpr platform::ClassName QBSPLoader{"QBSPLoader"};

} // namespace

void QBSPPreferencePane::initialize(platform::UserDefaults& userDefaults) {
    if (userDefaults.objectForKey(SorterTabIsInvisible).exists())
        return;
    // Stored, not registered as a default: the Sorter reads it from the host's preferences in its own
    // process.
    userDefaults.setBoolForKey(false, SorterTabIsInvisible);
}

std::shared_ptr<QBSPPreferencePane> QBSPPreferencePane::initWithBundle(const platform::Services& services,
                                                                       platform::PreferencePaneBase& base) {
    if (!base.initWithBundle()) {
        services.log.log("ERROR: Couldn't load SorterPrefPane plugin.");
        return nullptr;
    }
    auto pane = std::make_shared<QBSPPreferencePane>(Creation(), services, base);
    if (services.host.isSandboxed())
        pane->registerEmbeddedSorter();
    else
        pane->findRegistrar();
    return pane;
}

QBSPPreferencePane::QBSPPreferencePane(Creation, const platform::Services& services,
                                       platform::PreferencePaneBase& base)
    : services_(services), base_(base), tableArray_(services.strings) {}

void QBSPPreferencePane::registerEmbeddedSorter() {
    constexpr std::int32_t success = 0;
    if (services_.launchServices.registerURL(embeddedSorterURL(), platform::RegistrationUpdate::always) !=
        success)
        services_.log.log("ERROR: LSRegisterURL failed!");
}

void QBSPPreferencePane::findRegistrar() {
    platform::LoaderClass* const loader = services_.runtime.classFromString(QBSPLoader);
    if (loader == nullptr)
        services_.log.log("ERROR: SorterPlugin is not available!");
    else
        setLoginItemRegistrar(loader->defaultLoader());
}

std::optional<platform::URL> QBSPPreferencePane::sorterAppURL() const {
    const std::lock_guard lock(sorterAppURLLock_);
    return sorterAppURL_;
}

void QBSPPreferencePane::setSorterAppURL(std::optional<platform::URL> url) {
    const std::lock_guard lock(sorterAppURLLock_);
    sorterAppURL_ = std::move(url);
}

void QBSPPreferencePane::setLoginItemRegistrar(QBSPSorterControl* registrar) {
    loginItemRegistrar_ = platform::Outlet(registrar);
}

std::string QBSPPreferencePane::localized(platform::TextKey text) const {
    return services_.bundles.localizedStringForKey(text, platform::FallbackText{""}, std::nullopt);
}

} // namespace qbsp

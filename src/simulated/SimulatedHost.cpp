#include "simulated/SimulatedHost.h"

#include "simulated/Json.h"

#include <tuple>

namespace qbsp::simulated {

namespace {

std::string pathText(const std::optional<platform::URL>& url) {
    return url ? jsonText(url->path()) : "null";
}

} // namespace

bool SimulatedHost::isSandboxed() const {
    const bool result = !transcript_.fails() && world_.sandboxed;
    transcript_.record("NSApp isSandboxed", {}, json(result));
    return result;
}

bool SimulatedHost::isPro() const {
    const bool result = !transcript_.fails() && world_.pro;
    transcript_.record("NSApp isPro", {}, json(result));
    return result;
}

bool SimulatedRegistrar::applicationIsRegistered(const std::optional<platform::URL>& application) {
    const bool result = !transcript_.fails() && world_.registered;
    transcript_.record("registrar applicationIsRegistered:", {pathText(application)}, json(result));
    return result;
}

bool SimulatedRegistrar::registerApplication(const std::optional<platform::URL>& application) {
    const bool added = !transcript_.fails() && world_.registrarAdds;
    world_.registered = world_.registered || added;
    transcript_.record("registrar registerApplication:", {pathText(application)}, json(added));
    return added;
}

bool SimulatedRegistrar::unregisterApplication(const std::optional<platform::URL>& application) {
    const bool removed = !transcript_.fails() && world_.registrarRemoves;
    world_.registered = world_.registered && !removed;
    transcript_.record("registrar unregisterApplication:", {pathText(application)}, json(removed));
    return removed;
}

void SimulatedRegistrar::showAccountsSystemPreferencePane() {
    std::ignore = transcript_.fails();
    transcript_.record("registrar showAccountsSystemPreferencePane", {});
}

void SimulatedRegistrar::showSorterApplication() {
    std::ignore = transcript_.fails();
    transcript_.record("registrar showSorterApplication", {});
}

void SimulatedRegistrar::closeSorterApplication() {
    std::ignore = transcript_.fails();
    transcript_.record("registrar closeSorterApplication", {});
}

platform::LoaderClass* SimulatedRuntime::classFromString(platform::ClassName name) {
    const bool found = !transcript_.fails() && name.text == "QBSPLoader" && world_.loader != Loader::absent;
    transcript_.record("NSClassFromString", {jsonText(name.text)}, json(found));
    return found ? this : nullptr;
}

QBSPSorterControl* SimulatedRuntime::defaultLoader() {
    const bool offers = !transcript_.fails() && world_.loader == Loader::present;
    transcript_.record("QBSPLoader defaultLoader", {}, json(offers));
    return offers ? &registrar_ : nullptr;
}

platform::URL SimulatedBundles::mainBundleURL() const {
    return platform::URL::fileURLWithPath(world_.mainBundle);
}

std::optional<std::string>
SimulatedBundles::executablePathOfBundleForClassOf(const QBSPSorterControl* registrar) const {
    const bool failed = transcript_.fails();
    const auto path =
        registrar != nullptr ? std::optional(world_.registrarExecutable) : world_.noClassExecutable;
    auto result = failed ? std::nullopt : path;
    transcript_.record("NSBundle executablePath", {registrar != nullptr ? jsonText("registrar") : "null"},
                       jsonTextOrNull(result));
    return result;
}

std::string SimulatedBundles::localizedStringForKey(platform::TextKey key, platform::FallbackText value,
                                                    std::optional<platform::TextTable> table) const {
    const bool failed = transcript_.fails();
    const auto found = world_.translations.find(key.text);
    const std::string_view fallback = value.text.empty() ? key.text : value.text;
    const bool missing = failed || table.has_value() || found == world_.translations.end();
    std::string text(missing ? fallback : found->second);
    transcript_.record("NSBundle localizedStringForKey:value:table:",
                       {jsonText(key.text), jsonText(value.text), table ? jsonText(table->text) : "null"},
                       jsonText(text));
    return text;
}

void SimulatedLog::log(std::string_view line) {
    std::ignore = transcript_.fails();
    transcript_.record("NSLog", {jsonText(line)});
}

bool SimulatedPaneBase::initWithBundle() {
    const bool agrees = !transcript_.fails() && world_.baseAgrees;
    transcript_.record("NSPreferencePane initWithBundle:", {}, json(agrees));
    return agrees;
}

void SimulatedPaneBase::record(std::string_view message) {
    std::ignore = transcript_.fails();
    transcript_.record(message, {});
}

} // namespace qbsp::simulated

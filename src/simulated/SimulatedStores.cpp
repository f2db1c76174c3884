#include "simulated/SimulatedStores.h"

#include "simulated/Json.h"

#include <algorithm>
#include <tuple>

namespace qbsp::simulated {

namespace {

constexpr const char* currentUser = R"("kCFPreferencesCurrentUser")";
constexpr const char* anyHost = R"("kCFPreferencesAnyHost")";

} // namespace

platform::Value SimulatedUserDefaults::objectForKey(platform::DefaultsKey key) const {
    const bool failed = transcript_.fails();
    auto value = failed ? platform::Value() : world_.defaults.value(std::string(key.text));
    transcript_.record("NSUserDefaults objectForKey:", {jsonText(key.text)}, json(value));
    return value;
}

void SimulatedUserDefaults::setBoolForKey(bool value, platform::DefaultsKey key) {
    set("NSUserDefaults setBool:forKey:", value, key);
}

void SimulatedUserDefaults::setObjectForKey(const platform::Value& value, platform::DefaultsKey key) {
    set("NSUserDefaults setObject:forKey:", value, key);
}

void SimulatedUserDefaults::set(const char* operation, const platform::Value& value,
                                platform::DefaultsKey key) {
    if (!transcript_.fails())
        world_.defaults.set(std::string(key.text), value);
    transcript_.record(operation, {json(value), jsonText(key.text)});
}

bool SimulatedUserDefaults::synchronize() {
    const bool works = !transcript_.fails() && world_.synchronizes;
    if (works)
        world_.defaults.synchronize();
    transcript_.record("NSUserDefaults synchronize", {}, json(works));
    return works;
}

void SimulatedPreferences::addSuitePreferencesToApp(platform::ApplicationID application,
                                                    platform::SuiteID suite) {
    std::ignore = transcript_.fails();
    suites_.push_back(application);
    transcript_.record("CFPreferencesAddSuitePreferencesToApp",
                       {jsonText(application.text), jsonText(suite.text)});
}

void SimulatedPreferences::removeSuitePreferencesFromApp(platform::ApplicationID application,
                                                         platform::SuiteID suite) {
    std::ignore = transcript_.fails();
    const auto added = std::ranges::find(suites_, application);
    if (added != suites_.end())
        suites_.erase(added);
    transcript_.record("CFPreferencesRemoveSuitePreferencesFromApp",
                       {jsonText(application.text), jsonText(suite.text)});
}

platform::Value SimulatedPreferences::copyAppValue(platform::PreferenceKey key,
                                                   platform::ApplicationID application) const {
    auto value = transcript_.fails() ? platform::Value() : seenBy(application, key);
    transcript_.record("CFPreferencesCopyAppValue", {jsonText(key.text), jsonText(application.text)},
                       json(value));
    return value;
}

platform::Value SimulatedPreferences::seenBy(platform::ApplicationID application,
                                             platform::PreferenceKey key) const {
    const std::string name(key.text);
    const auto domain = world_.domains.find(application.text);
    auto own = domain == world_.domains.end() ? platform::Value() : domain->second.value(name);
    const bool hasSuite = std::ranges::find(suites_, application) != suites_.end();
    return own.exists() || !hasSuite ? own : world_.defaults.value(name);
}

void SimulatedPreferences::setAppValue(platform::PreferenceKey key, const platform::Value& value,
                                       platform::ApplicationID application) {
    if (!transcript_.fails())
        domain(application).set(std::string(key.text), value);
    transcript_.record("CFPreferencesSetAppValue",
                       {jsonText(key.text), json(value), jsonText(application.text)});
}

void SimulatedPreferences::setValue(platform::PreferenceKey key, const platform::Value& value,
                                    platform::ApplicationID application, platform::PreferencesUser,
                                    platform::PreferencesHost) {
    if (!transcript_.fails())
        domain(application).set(std::string(key.text), value);
    transcript_.record("CFPreferencesSetValue",
                       {jsonText(key.text), json(value), jsonText(application.text), currentUser, anyHost});
}

bool SimulatedPreferences::synchronize(platform::ApplicationID application, platform::PreferencesUser,
                                       platform::PreferencesHost) {
    const bool works = !transcript_.fails();
    if (works)
        domain(application).synchronize();
    transcript_.record("CFPreferencesSynchronize", {jsonText(application.text), currentUser, anyHost});
    return works;
}

Store& SimulatedPreferences::domain(platform::ApplicationID application) {
    return world_.domains[std::string(application.text)];
}

} // namespace qbsp::simulated

#include "appkit/Preferences.h"

#include "appkit/PropertyListConversion.h"
#include "appkit/Strings.h"
#include "appkit/gnustep/DomainFile.h"

#include <map>
#include <set>
#include <string>
#include <tuple>

namespace qbsp::appkit {

using platform::ApplicationID;
using platform::Dictionary;
using platform::PreferenceKey;
using platform::SuiteID;
using platform::Value;

namespace {

Value hostValue(const std::string& key) {
    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
    NSString* hostDomain = [[NSProcessInfo processInfo] processName];
    return valueFromObject([[defaults persistentDomainForName:hostDomain] objectForKey:nsString(key)]);
}

/// Preferences on the files of the user's defaults. A value is flushed as it is set; one that could not be is
/// kept, and seen, until a later flush carries it.
class DefaultsFilePreferences final : public platform::Preferences {
  public:
    void addSuitePreferencesToApp(ApplicationID application, SuiteID) override {
        withHostAsSuite_.emplace(application.text);
    }

    void removeSuitePreferencesFromApp(ApplicationID application, SuiteID) override {
        withHostAsSuite_.erase(std::string(application.text));
    }

    Value copyAppValue(PreferenceKey key, ApplicationID application) const override;

    void setAppValue(PreferenceKey key, const Value& value, ApplicationID application) override {
        unflushed_[std::string(application.text)][std::string(key.text)] = value;
        std::ignore = flush(application); // synchronize() tells, and tries again
    }

    void setValue(PreferenceKey key, const Value& value, ApplicationID application, platform::PreferencesUser,
                  platform::PreferencesHost) override {
        setAppValue(key, value, application);
    }

    bool synchronize(ApplicationID application, platform::PreferencesUser,
                     platform::PreferencesHost) override {
        return flush(application);
    }

  private:
    [[nodiscard]] Dictionary domainContents(const std::string& domain) const;
    [[nodiscard]] bool flush(ApplicationID application);

    std::set<std::string> withHostAsSuite_;
    std::map<std::string, Dictionary> unflushed_;
};

Value DefaultsFilePreferences::copyAppValue(PreferenceKey key, ApplicationID application) const {
    const std::string domain(application.text);
    const std::string name(key.text);
    if (Value value = entry(domainContents(domain), name); value.exists())
        return value;
    if (withHostAsSuite_.contains(domain))
        if (Value value = hostValue(name); value.exists())
            return value;
    return entry(domainContents(utf8(NSGlobalDomain)), name);
}

Dictionary DefaultsFilePreferences::domainContents(const std::string& domain) const {
    Dictionary contents = DomainFile(domain).contents();
    if (const auto waiting = unflushed_.find(domain); waiting != unflushed_.end())
        for (const auto& [key, value] : waiting->second)
            contents[key] = value;
    return contents;
}

bool DefaultsFilePreferences::flush(ApplicationID application) {
    const auto waiting = unflushed_.find(std::string(application.text));
    if (waiting == unflushed_.end())
        return true;
    const bool flushed = DomainFile(waiting->first).merge(waiting->second);
    if (flushed)
        unflushed_.erase(waiting);
    return flushed;
}

} // namespace

std::unique_ptr<platform::Preferences> makePreferences() {
    return std::make_unique<DefaultsFilePreferences>();
}

} // namespace qbsp::appkit

#include "appkit/stores/Preferences.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Strings.h"
#include "appkit/stores/gnustep/DomainFile.h"

#include <map>
#include <set>
#include <string>

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

/// Preferences on the files of the user's defaults. What was set is seen in this process at once; every flush
/// carries all that waits, whichever domain it is asked for, and so does the end.
class DefaultsFilePreferences final : public platform::Preferences {
  public:
    DefaultsFilePreferences() = default;

    ~DefaultsFilePreferences() override { flush(); }

    DefaultsFilePreferences(const DefaultsFilePreferences&) = delete;
    DefaultsFilePreferences& operator=(const DefaultsFilePreferences&) = delete;

    void addSuitePreferencesToApp(ApplicationID application, SuiteID) override {
        withHostAsSuite_.emplace(application.text);
    }

    void removeSuitePreferencesFromApp(ApplicationID application, SuiteID) override {
        withHostAsSuite_.erase(std::string(application.text));
    }

    Value copyAppValue(PreferenceKey key, ApplicationID application) const override;

    void setAppValue(PreferenceKey key, const Value& value, ApplicationID application) override {
        unflushed_[std::string(application.text)][std::string(key.text)] = value;
    }

    void setValue(PreferenceKey key, const Value& value, ApplicationID application, platform::PreferencesUser,
                  platform::PreferencesHost) override {
        setAppValue(key, value, application);
    }

    bool synchronize(ApplicationID application, platform::PreferencesUser,
                     platform::PreferencesHost) override {
        flush();
        return !unflushed_.contains(std::string(application.text));
    }

  private:
    [[nodiscard]] Dictionary domainContents(const std::string& domain) const;
    void flush();

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

void DefaultsFilePreferences::flush() {
    std::erase_if(unflushed_,
                  [](const auto& domain) { return DomainFile(domain.first).merge(domain.second); });
}

} // namespace

std::unique_ptr<platform::Preferences> makePreferences() {
    return std::make_unique<DefaultsFilePreferences>();
}

} // namespace qbsp::appkit

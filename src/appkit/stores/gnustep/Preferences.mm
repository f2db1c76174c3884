#include "appkit/stores/Preferences.h"

#include "appkit/bridge/Strings.h"
#include "appkit/stores/gnustep/Saving.h"

#include <set>
#include <string>

namespace qbsp::appkit {

using platform::ApplicationID;
using platform::PreferenceKey;
using platform::SuiteID;
using platform::Value;

namespace {

std::filesystem::path fileOf(std::string_view domain) {
    return storedLists().fileOfDomain(std::string(domain));
}

/// Preferences on the files of the user's defaults. Every flush carries all that waits, whichever domain it
/// is asked for, and so does the end.
class StoredPreferences final : public platform::Preferences {
public:
    StoredPreferences() = default;

    ~StoredPreferences() override { saveNow(); }

    StoredPreferences(const StoredPreferences&) = delete;
    StoredPreferences& operator=(const StoredPreferences&) = delete;

    void addSuitePreferencesToApp(ApplicationID application, SuiteID) override {
        withHostAsSuite_.emplace(application.text);
    }

    void removeSuitePreferencesFromApp(ApplicationID application, SuiteID) override {
        withHostAsSuite_.erase(std::string(application.text));
    }

    Value copyAppValue(PreferenceKey key, ApplicationID application) const override;

    void setAppValue(PreferenceKey key, const Value& value, ApplicationID application) override {
        storedLists().set(fileOf(application.text), std::string(key.text), value);
        saveSoon();
    }

    void setValue(PreferenceKey key, const Value& value, ApplicationID application, platform::PreferencesUser,
                  platform::PreferencesHost) override {
        setAppValue(key, value, application);
    }

    bool synchronize(ApplicationID application, platform::PreferencesUser,
                     platform::PreferencesHost) override {
        saveNow();
        return !storedLists().waits(fileOf(application.text));
    }

private:
    std::set<std::string> withHostAsSuite_;
};

Value StoredPreferences::copyAppValue(PreferenceKey key, ApplicationID application) const {
    const std::string name(key.text);
    if (Value value = entry(storedLists().contents(fileOf(application.text)), name); value.exists())
        return value;
    if (withHostAsSuite_.contains(std::string(application.text)))
        if (Value value = entry(storedLists().contents(hostFile()), name); value.exists())
            return value;
    return entry(storedLists().contents(fileOf(utf8(NSGlobalDomain))), name);
}

} // namespace

std::unique_ptr<platform::Preferences> makePreferences() {
    return std::make_unique<StoredPreferences>();
}

} // namespace qbsp::appkit

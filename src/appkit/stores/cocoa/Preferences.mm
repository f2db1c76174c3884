#include "appkit/stores/Preferences.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Retained.h"
#include "appkit/bridge/Strings.h"

#import <CoreFoundation/CoreFoundation.h>

namespace qbsp::appkit {

namespace {

CFStringRef cfString(std::string_view text) {
    return reinterpret_cast<CFStringRef>(nsString(text));
}

// The constant's value differs from the name that the pane knows it by.
CFStringRef cfSuite(platform::SuiteID suite) {
    const bool isCurrent = suite == platform::kCFPreferencesCurrentApplication;
    return isCurrent ? ::kCFPreferencesCurrentApplication : cfString(suite.text);
}

CFPropertyListRef cfValue(const platform::Value& value) {
    return reinterpret_cast<CFPropertyListRef>(objectFromValue(value));
}

class CoreFoundationPreferences final : public platform::Preferences {
public:
    void addSuitePreferencesToApp(platform::ApplicationID application, platform::SuiteID suite) override {
        CFPreferencesAddSuitePreferencesToApp(cfString(application.text), cfSuite(suite));
    }

    void removeSuitePreferencesFromApp(platform::ApplicationID application,
                                       platform::SuiteID suite) override {
        CFPreferencesRemoveSuitePreferencesFromApp(cfString(application.text), cfSuite(suite));
    }

    platform::Value copyAppValue(platform::PreferenceKey key,
                                 platform::ApplicationID application) const override {
        CFPropertyListRef copy = CFPreferencesCopyAppValue(cfString(key.text), cfString(application.text));
        return valueFromObject(Retained<id>::adopt(reinterpret_cast<id>(const_cast<void*>(copy))).get());
    }

    void setAppValue(platform::PreferenceKey key, const platform::Value& value,
                     platform::ApplicationID application) override {
        CFPreferencesSetAppValue(cfString(key.text), cfValue(value), cfString(application.text));
    }

    void setValue(platform::PreferenceKey key, const platform::Value& value,
                  platform::ApplicationID application, platform::PreferencesUser,
                  platform::PreferencesHost) override {
        CFPreferencesSetValue(cfString(key.text), cfValue(value), cfString(application.text),
                              kCFPreferencesCurrentUser, kCFPreferencesAnyHost);
    }

    bool synchronize(platform::ApplicationID application, platform::PreferencesUser,
                     platform::PreferencesHost) override {
        return CFPreferencesSynchronize(cfString(application.text), kCFPreferencesCurrentUser,
                                        kCFPreferencesAnyHost);
    }
};

} // namespace

std::unique_ptr<platform::Preferences> makePreferences() {
    return std::make_unique<CoreFoundationPreferences>();
}

} // namespace qbsp::appkit

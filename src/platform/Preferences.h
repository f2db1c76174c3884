#pragma once

#include "platform/Name.h"
#include "platform/Value.h"

namespace qbsp::platform {

/// Whose preferences are meant.
enum class PreferencesUser { currentUser };

/// On which machines they apply.
enum class PreferencesHost { anyHost };

inline constexpr SuiteID kCFPreferencesCurrentApplication{"kCFPreferencesCurrentApplication"};

/// The preferences of any application, by the domain that its identifier names.
class Preferences {
public:
    virtual ~Preferences() = default;

    /// From now on a key that the application's domain lacks is also looked for in the suite.
    virtual void addSuitePreferencesToApp(ApplicationID application, SuiteID suite) = 0;

    /// Removes the suite.
    virtual void removeSuitePreferencesFromApp(ApplicationID application, SuiteID suite) = 0;

    /// The value that the application sees for the key; no value when there is none.
    [[nodiscard]] virtual Value copyAppValue(PreferenceKey key, ApplicationID application) const = 0;

    /// Sets the value in the application's domain; no value removes the key.
    virtual void setAppValue(PreferenceKey key, const Value& value, ApplicationID application) = 0;

    /// Sets the value in the application's domain for that user and those machines; no value removes the key.
    virtual void setValue(PreferenceKey key, const Value& value, ApplicationID application,
                          PreferencesUser user, PreferencesHost host) = 0;

    /// Flushes what was set in the domain to where other processes read it. False when that failed.
    [[nodiscard]] virtual bool synchronize(ApplicationID application, PreferencesUser user,
                                           PreferencesHost host) = 0;
};

} // namespace qbsp::platform

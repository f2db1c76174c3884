#pragma once

#include "platform/Preferences.h"
#include "platform/UserDefaults.h"
#include "simulated/Transcript.h"
#include "simulated/World.h"

#include <vector>

namespace qbsp::simulated {

class SimulatedUserDefaults final : public platform::UserDefaults {
public:
    SimulatedUserDefaults(World& world, Transcript& transcript) : world_(world), transcript_(transcript) {}

    platform::Value objectForKey(platform::DefaultsKey key) const override;
    void setBoolForKey(bool value, platform::DefaultsKey key) override;
    void setObjectForKey(const platform::Value& value, platform::DefaultsKey key) override;
    bool synchronize() override;

private:
    void set(const char* operation, const platform::Value& value, platform::DefaultsKey key);

    World& world_;
    Transcript& transcript_;
};

class SimulatedPreferences final : public platform::Preferences {
public:
    SimulatedPreferences(World& world, Transcript& transcript) : world_(world), transcript_(transcript) {}

    void addSuitePreferencesToApp(platform::ApplicationID application, platform::SuiteID suite) override;
    void removeSuitePreferencesFromApp(platform::ApplicationID application, platform::SuiteID suite) override;
    platform::Value copyAppValue(platform::PreferenceKey key,
                                 platform::ApplicationID application) const override;
    void setAppValue(platform::PreferenceKey key, const platform::Value& value,
                     platform::ApplicationID application) override;
    void setValue(platform::PreferenceKey key, const platform::Value& value,
                  platform::ApplicationID application, platform::PreferencesUser user,
                  platform::PreferencesHost host) override;
    bool synchronize(platform::ApplicationID application, platform::PreferencesUser user,
                     platform::PreferencesHost host) override;

    /// How many suites were added and not removed.
    [[nodiscard]] std::size_t openSuites() const { return suites_.size(); }

private:
    [[nodiscard]] platform::Value seenBy(platform::ApplicationID application,
                                         platform::PreferenceKey key) const;
    [[nodiscard]] Store& domain(platform::ApplicationID application);

    World& world_;
    Transcript& transcript_;
    std::vector<platform::ApplicationID> suites_; ///< the applications that the host's defaults were added to
};

} // namespace qbsp::simulated

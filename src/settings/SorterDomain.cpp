#include "settings/SorterDomain.h"

#include "settings/SorterStores.h"
#include "sorter/SorterIdentity.h"

#include <tuple>

namespace qbsp {

namespace {

/// Holds the suite added for as long as it lives.
class SuiteScope {
public:
    // The Sorter's domain stands as the application and the host as the suite: while the suite is in force, a
    // key that the Sorter lacks is looked for in the host's own domain.
    SuiteScope(platform::Preferences& preferences, platform::ApplicationID sorter)
        : preferences_(preferences), sorter_(sorter) {
        preferences_.addSuitePreferencesToApp(sorter_, platform::kCFPreferencesCurrentApplication);
    }

    ~SuiteScope() {
        preferences_.removeSuitePreferencesFromApp(sorter_, platform::kCFPreferencesCurrentApplication);
    }

    SuiteScope(const SuiteScope&) = delete;
    SuiteScope& operator=(const SuiteScope&) = delete;
    SuiteScope(SuiteScope&&) = delete;
    SuiteScope& operator=(SuiteScope&&) = delete;

private:
    platform::Preferences& preferences_;
    platform::ApplicationID sorter_;
};

} // namespace

platform::Value SorterDomain::hideFlags() const {
    const SuiteScope suite(preferences_, sorter_);
    return preferences_.copyAppValue(UserSpecifiedFullScreenApplications, sorter_);
}

void SorterDomain::writeHideFlags(const platform::Dictionary& flags) {
    const SuiteScope suite(preferences_, sorter_);
    preferences_.setAppValue(UserSpecifiedFullScreenApplications, flags, sorter_);
    synchronize();
}

void SorterDomain::resetHideFlags(const platform::Value& factoryFlags) {
    const SuiteScope suite(preferences_, sorter_);
    // The full edition's domain whichever edition resets: the factory's list is the full edition's, and the
    // list that a user of the Solo edition made is never thrown away.
    preferences_.setValue(UserSpecifiedFullScreenApplications, factoryFlags, fullSorter.domain(),
                          platform::PreferencesUser::currentUser, platform::PreferencesHost::anyHost);
    synchronize();
}

void SorterDomain::synchronize() {
    // A failed flush neither stops nor delays what follows: the value is set, and the next flush carries it.
    std::ignore = preferences_.synchronize(sorter_, platform::PreferencesUser::currentUser,
                                           platform::PreferencesHost::anyHost);
}

} // namespace qbsp

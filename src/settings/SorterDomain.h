#pragma once

#include "platform/Preferences.h"

namespace qbsp {

/// The hide list in one Sorter's preferences domain. Every access is bracketed by adding and removing the
/// current application as a suite.
class SorterDomain {
public:
    /// The domain of that Sorter; the preferences must outlive this.
    SorterDomain(platform::Preferences& preferences, platform::ApplicationID sorter)
        : preferences_(preferences), sorter_(sorter) {}

    /// The stored list, of whatever kind it is; no value when there is none.
    [[nodiscard]] platform::Value hideFlags() const;

    /// Writes the list and flushes it.
    void writeHideFlags(const platform::Dictionary& flags);

    /// Writes the factory's list into the full edition's domain, whichever Sorter this is, and flushes this
    /// Sorter's. No value removes the key.
    void resetHideFlags(const platform::Value& factoryFlags);

private:
    void synchronize();

    platform::Preferences& preferences_;
    platform::ApplicationID sorter_;
};

} // namespace qbsp

#pragma once

#include "platform/Value.h"

#include <string>

namespace qbsp::simulated {

/// One preferences domain. What this process has set and what other processes see are two states; they become
/// one by synchronizing.
class Store {
public:
    /// The value that this process sees; no value when the key is missing.
    [[nodiscard]] platform::Value value(const std::string& key) const { return platform::entry(set_, key); }

    /// Sets a value for this process; no value removes the key.
    void set(const std::string& key, const platform::Value& value);

    /// Sets a value for every process, as another process does.
    void put(const std::string& key, const platform::Value& value);

    void synchronize() { synchronized_ = set_; }

    [[nodiscard]] const platform::Dictionary& contents() const { return set_; }

    [[nodiscard]] const platform::Dictionary& seenByOthers() const { return synchronized_; }

private:
    platform::Dictionary set_;
    platform::Dictionary synchronized_;
};

} // namespace qbsp::simulated

#pragma once

#include "appkit/bridge/Retained.h"

namespace qbsp::appkit {

/// The lock that every process takes to write files of the user's defaults, for as long as this exists.
class DefaultsLock {
public:
    /// Waits for the lock, unless it can never be taken. One that a dead process left behind is broken as
    /// soon as it counts as stale.
    DefaultsLock();
    ~DefaultsLock();
    DefaultsLock(const DefaultsLock&) = delete;
    DefaultsLock& operator=(const DefaultsLock&) = delete;

    [[nodiscard]] bool isHeld() const { return held_; }

private:
    [[nodiscard]] bool acquire() const;

    Retained<NSDistributedLock*> lock_;
    bool held_;
};

} // namespace qbsp::appkit

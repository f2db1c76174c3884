#pragma once

#include "platform/Name.h"
#include "platform/Value.h"

namespace qbsp::platform {

/// The standard user defaults of the process that the pane runs in: the host's.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// The value found for the key in any domain of the defaults; no value when there is none.
    [[nodiscard]] virtual Value objectForKey(DefaultsKey key) const = 0;

    /// Sets a Boolean in the host's own domain.
    virtual void setBoolForKey(bool value, DefaultsKey key) = 0;

    /// Sets a value in the host's own domain.
    virtual void setObjectForKey(const Value& value, DefaultsKey key) = 0;

    /// Flushes what was set to where other processes read it. False when that failed; what was set stays set.
    [[nodiscard]] virtual bool synchronize() = 0;
};

} // namespace qbsp::platform

#pragma once

#include "platform/KeyCombo.h"
#include "platform/Value.h"

#include <cstdint>

namespace qbsp {

/// A hot key as it is stored: a key code, of which readers take 16 bits, and Carbon's modifier mask.
struct StoredHotKey {
    std::int16_t code = 0;
    platform::CarbonFlags modifiers = 0;

    /// What the two stored values mean; a value that is missing or no number is 0.
    [[nodiscard]] static StoredHotKey read(const platform::Value& code, const platform::Value& modifiers);

    /// The combination that a recorder shows for it.
    [[nodiscard]] platform::KeyCombo keyCombo() const;

    /// True for the combination of that key code and those modifiers.
    [[nodiscard]] bool matches(std::int64_t keyCode, platform::CocoaFlags flags) const;
};

/// The values under which a combination is stored: the code in 32 bits, and the modifiers.
[[nodiscard]] platform::Value storedCode(const platform::KeyCombo& keyCombo);
[[nodiscard]] platform::Value storedModifiers(const platform::KeyCombo& keyCombo);

} // namespace qbsp

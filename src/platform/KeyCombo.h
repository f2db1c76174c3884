#pragma once

#include <cstdint>

namespace qbsp::platform {

/// Modifier keys as the window system reports them with an event (Cocoa's mask).
using CocoaFlags = std::uint64_t;

/// Modifier keys as hot keys are stored (Carbon's mask).
using CarbonFlags = std::uint32_t;

/// A recorder's key combination. Code -1 without flags is the empty combination: no hot key.
struct KeyCombo {
    CocoaFlags flags = 0;
    std::int64_t code = -1; ///< virtual key code
    friend bool operator==(const KeyCombo&, const KeyCombo&) = default;
};

/// Command, Option, Control and Shift carried over to Carbon's mask; all other bits are dropped.
[[nodiscard]] CarbonFlags cocoaToCarbonFlags(CocoaFlags flags);

/// The same four carried back to Cocoa's mask; all other bits are dropped.
[[nodiscard]] CocoaFlags carbonToCocoaFlags(CarbonFlags flags);

} // namespace qbsp::platform

#pragma once

#include <cstdint>

namespace qbsp::platform {

/// Modifier keys as the window system reports them with an event (Cocoa's mask).
using CocoaFlags = std::uint64_t;

/// Modifier keys as hot keys are stored (Carbon's mask).
using CarbonFlags = std::uint32_t;

/// The bits of the modifier keys in Cocoa's mask.
namespace modifiers::cocoa {
inline constexpr CocoaFlags shift = 0x20000;
inline constexpr CocoaFlags control = 0x40000;
inline constexpr CocoaFlags option = 0x80000;
inline constexpr CocoaFlags command = 0x100000;
} // namespace modifiers::cocoa

/// The bits of the modifier keys in Carbon's mask.
namespace modifiers::carbon {
inline constexpr CarbonFlags command = 0x100;
inline constexpr CarbonFlags shift = 0x200;
inline constexpr CarbonFlags option = 0x800;
inline constexpr CarbonFlags control = 0x1000;
} // namespace modifiers::carbon

/// A recorder's key combination. Code -1 without flags is the empty combination: no hot key.
struct KeyCombo {
    CocoaFlags flags = 0;
    std::int64_t code = -1; ///< virtual key code
    friend bool operator==(const KeyCombo&, const KeyCombo&) = default;
};

/// Command, Option, Control and Shift in Carbon's mask; all other bits are dropped.
[[nodiscard]] CarbonFlags cocoaToCarbonFlags(CocoaFlags flags);

/// The same four in Cocoa's mask; all other bits are dropped.
[[nodiscard]] CocoaFlags carbonToCocoaFlags(CarbonFlags flags);

} // namespace qbsp::platform

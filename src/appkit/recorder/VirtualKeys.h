#pragma once

#include "platform/KeyCombo.h"

#include <cstdint>

namespace qbsp::recorder {

using platform::CocoaFlags;
using platform::KeyCombo;

/// A key by its position on the Mac's keyboard, whatever letter the layout prints on it.
using VirtualKey = std::int64_t;

/// No key, or a key that the Mac's keyboard does not have.
inline constexpr VirtualKey noKey = -1;

namespace keys {

inline constexpr VirtualKey returnKey = 36;
inline constexpr VirtualKey tab = 48;
inline constexpr VirtualKey space = 49;
inline constexpr VirtualKey backspace = 51;
inline constexpr VirtualKey escape = 53;
inline constexpr VirtualKey forwardDelete = 117;

} // namespace keys

namespace modifiers {

using namespace platform::modifiers::cocoa;
inline constexpr CocoaFlags all = shift | control | option | command;

} // namespace modifiers

/// The combination as a recorder keeps it: Caps Lock and other event flags are removed, and a combination
/// without a key becomes the empty one.
[[nodiscard]] KeyCombo normalized(const KeyCombo& combo);

/// True when the combination has a key.
[[nodiscard]] bool holdsKey(const KeyCombo& combo);

/// True for F1 to F20.
[[nodiscard]] bool isFunctionKey(VirtualKey key);

} // namespace qbsp::recorder

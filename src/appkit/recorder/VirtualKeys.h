#pragma once

#include "platform/KeyCombo.h"

#include <cstdint>

namespace qbsp::recorder {

using platform::CocoaFlags;
using platform::KeyCombo;

/// A key by its place on the Mac's keyboard, whatever letter the layout prints on it.
using VirtualKey = std::int64_t;

/// Stands for a key that has no place on the Mac's keyboard, and for no key at all.
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

/// The combination without what a recorder does not record: Caps Lock and other bits of an event go, and a
/// combination without a key is the empty one.
[[nodiscard]] KeyCombo normalized(const KeyCombo& combo);

/// True when the combination has a key.
[[nodiscard]] bool holdsKey(const KeyCombo& combo);

/// True for F1 to F20.
[[nodiscard]] bool isFunctionKey(VirtualKey key);

} // namespace qbsp::recorder

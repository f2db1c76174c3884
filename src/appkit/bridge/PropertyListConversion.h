#pragma once

#include "platform/Value.h"

#import <Foundation/Foundation.h>

#include <optional>

namespace qbsp::appkit {

/// The object as a value of the same kind: Booleans, integers by width and sign, and reals stay apart. An
/// object that no property list holds is no value; so is nil.
[[nodiscard]] platform::Value valueFromObject(id object);

/// The dictionary's entries under string keys; none when the object is no dictionary.
[[nodiscard]] std::optional<platform::Dictionary> dictionaryFromObject(id object);

/// The value as an autoreleased object of the same kind; nil for no value.
[[nodiscard]] id objectFromValue(const platform::Value& value);

[[nodiscard]] NSDictionary* objectFromDictionary(const platform::Dictionary& dictionary);

/// The dictionary, or nil for none.
[[nodiscard]] NSDictionary* objectFromDictionary(const std::optional<platform::Dictionary>& dictionary);

} // namespace qbsp::appkit

#pragma once

#include "platform/Value.h"

#import <Foundation/Foundation.h>

#include <optional>

namespace qbsp::appkit {

/// Converts the object to a value of the same kind, keeping Booleans, reals, and integers of each width and
/// sign apart. Returns no value for nil and for an object that a property list cannot hold.
[[nodiscard]] platform::Value valueFromObject(id object);

/// The entries whose keys are strings; none when the object is not a dictionary.
[[nodiscard]] std::optional<platform::Dictionary> dictionaryFromObject(id object);

/// The value as an autoreleased object of the same kind; nil for no value.
[[nodiscard]] id objectFromValue(const platform::Value& value);

[[nodiscard]] NSDictionary* objectFromDictionary(const platform::Dictionary& dictionary);

/// The dictionary, or nil for none.
[[nodiscard]] NSDictionary* objectFromDictionary(const std::optional<platform::Dictionary>& dictionary);

} // namespace qbsp::appkit

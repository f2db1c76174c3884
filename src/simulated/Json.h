#pragma once

#include "platform/Value.h"

#include <string>
#include <string_view>

namespace qbsp::simulated {

/// The value as JSON on one line: a space after each comma and colon, object keys in ascending byte order,
/// reals in the shortest form that reads back the same.
[[nodiscard]] std::string json(const platform::Value& value);

/// True for well-formed UTF-8.
[[nodiscard]] bool isUtf8(std::string_view text);

/// A text as JSON; one that is missing as null.
[[nodiscard]] std::string jsonText(std::string_view text);
[[nodiscard]] std::string jsonTextOrNull(const std::optional<std::string>& text);

/// The value that one JSON text stands for. Throws std::invalid_argument when it is not JSON, or holds a
/// number that 64 bits cannot, or has a null inside.
[[nodiscard]] platform::Value parseJson(std::string_view text);

} // namespace qbsp::simulated

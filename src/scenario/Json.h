#pragma once

#include <nlohmann/json_fwd.hpp>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// JSON as scenarios and their transcripts have it: on one line, a space after each comma and colon.

namespace qbsp::scenario {

/// True for well-formed UTF-8.
[[nodiscard]] bool isUtf8(std::string_view text);

/// A text as JSON: only what must be escaped is. One that is missing is null. Bytes that are not UTF-8 are
/// replaced by U+FFFD.
[[nodiscard]] std::string jsonText(std::string_view text);
[[nodiscard]] std::string jsonTextOrNull(const std::optional<std::string>& text);

[[nodiscard]] std::string jsonBoolean(bool boolean);

/// A finite number in the shortest decimal form that reads back the same: with a point from 1e-4 to below
/// 1e16, with an exponent outside.
[[nodiscard]] std::string jsonReal(double number);

/// An array of elements that are JSON already.
[[nodiscard]] std::string jsonArray(const std::vector<std::string>& elements);

/// An object whose values are JSON already, its keys in ascending byte order.
[[nodiscard]] std::string jsonObject(const std::map<std::string, std::string>& members);

/// The value that one JSON text stands for; null only by itself. Throws ScenarioError when it is not JSON,
/// holds a number that 64 bits cannot, has a null inside, or is nested more than 200 deep.
[[nodiscard]] nlohmann::json parseJson(std::string_view text);

} // namespace qbsp::scenario

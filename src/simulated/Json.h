#pragma once

#include "platform/Value.h"
#include "scenario/Json.h"

#include <string>

namespace qbsp::simulated {

using scenario::jsonText;
using scenario::jsonTextOrNull;

/// The value as JSON on one line. No value is null; a date is its seconds, and data an array of as many
/// zeros.
[[nodiscard]] std::string json(const platform::Value& value);

/// The value that JSON stands for. There must be no null inside.
[[nodiscard]] platform::Value valueOf(const nlohmann::json& parsed);

} // namespace qbsp::simulated

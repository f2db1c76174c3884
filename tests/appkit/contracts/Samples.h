#pragma once

#include "platform/Value.h"
#include "simulated/Json.h"

#include <ostream>
#include <vector>

namespace qbsp::platform {

inline void PrintTo(const Value& value, std::ostream* stream) {
    *stream << simulated::json(value);
}

} // namespace qbsp::platform

namespace qbsp::contracts {

/// A value of every kind that a property list distinguishes.
[[nodiscard]] inline std::vector<platform::Value> valuesOfEveryKind() {
    using platform::Array;
    using platform::Dictionary;
    return {true,
            false,
            std::int32_t{-1},
            std::int32_t{5},
            std::int64_t{1} << 40,
            2.5,
            "",
            "Größe <&> \"quoted\"\n漢字",
            platform::Date{86400},
            platform::Data{std::byte{0}, std::byte{255}},
            Array{true, "text", Array{}},
            Dictionary{{"Mail", true}, {"Ünïcode.app", Dictionary{{"Clock", false}}}}};
}

} // namespace qbsp::contracts

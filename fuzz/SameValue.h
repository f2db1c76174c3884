#pragma once

#include "platform/Value.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace qbsp::fuzz {

/// Whether the values are equal, where a real that is no number equals another.
inline bool isSame(const platform::Value& first, const platform::Value& second);

template <class T>
bool isSame(const T& first, const T& second) {
    return first == second;
}

inline bool isSame(double first, double second) {
    return first == second || (std::isnan(first) && std::isnan(second));
}

inline bool isSame(const platform::Date& first, const platform::Date& second) {
    return isSame(first.secondsSinceReferenceDate, second.secondsSinceReferenceDate);
}

inline bool isSame(const platform::Array& first, const platform::Array& second) {
    return std::ranges::equal(first, second,
                              [](const auto& one, const auto& other) { return isSame(one, other); });
}

inline bool isSame(const platform::Dictionary& first, const platform::Dictionary& second) {
    return std::ranges::equal(first, second, [](const auto& one, const auto& other) {
        return one.first == other.first && isSame(one.second, other.second);
    });
}

inline bool isSame(const platform::Value& first, const platform::Value& second) {
    return first.visit([&](const auto& kind) {
        const auto* const other = second.as<std::remove_cvref_t<decltype(kind)>>();
        return other != nullptr && isSame(kind, *other);
    });
}

} // namespace qbsp::fuzz

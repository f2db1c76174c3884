#pragma once

#include "platform/Value.h"

#include <algorithm>
#include <cmath>

namespace qbsp::fuzz {

inline bool isSame(double first, double second) {
    return first == second || (std::isnan(first) && std::isnan(second));
}

/// Whether the values are equal, where a real that is no number equals another.
inline bool isSame(const platform::Value& first, const platform::Value& second) {
    if (first.kind().index() != second.kind().index())
        return false;
    if (const auto* const real = first.as<double>())
        return isSame(*real, *second.as<double>());
    if (const auto* const date = first.as<platform::Date>())
        return isSame(date->secondsSinceReferenceDate,
                      second.as<platform::Date>()->secondsSinceReferenceDate);
    const auto isSameValue = [](const platform::Value& one, const platform::Value& other) {
        return isSame(one, other);
    };
    if (const auto* const array = first.as<platform::Array>())
        return std::ranges::equal(*array, *second.as<platform::Array>(), isSameValue);
    if (const auto* const dictionary = first.as<platform::Dictionary>())
        return std::ranges::equal(*dictionary, *second.as<platform::Dictionary>(),
                                  [](const auto& one, const auto& other) {
                                      return one.first == other.first && isSame(one.second, other.second);
                                  });
    return first == second;
}

} // namespace qbsp::fuzz

#pragma once

#include <cstdint>
#include <cstdlib>

namespace qbsp {

/// The number that the environment's variable of that name holds; the usual one when there is none.
[[nodiscard]] inline std::int64_t numberFromEnvironment(const char* variable, std::int64_t usual) {
    const char* const text = std::getenv(variable);
    return text == nullptr ? usual : std::strtoll(text, nullptr, 10);
}

/// The seed of a random test, by which it can be repeated.
[[nodiscard]] inline std::uint32_t seedFromEnvironment(std::uint32_t usual) {
    return static_cast<std::uint32_t>(numberFromEnvironment("SORTERPANE_SEED", usual));
}

} // namespace qbsp

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qbsp::fuzz {

/// The fuzzer's input as a text.
inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are characters
    return {reinterpret_cast<const char*>(data), size};
}

} // namespace qbsp::fuzz

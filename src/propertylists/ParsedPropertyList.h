#pragma once

#include "platform/Value.h"

#include <cstddef>
#include <variant>

namespace qbsp::propertylists {

/// Containers may lie in each other this deep.
inline constexpr std::size_t deepestNesting = 512;

/// Why bytes are no property list that could be kept as it is.
enum class Fault {
    notAPropertyList,
    nestedTooDeeply,
    moreThanOneRoot,
    tooLarge, ///< it names parts so often that it would need too much memory
};

/// The value, which exists, or why there is none.
using Parsed = std::variant<platform::Value, Fault>;

} // namespace qbsp::propertylists

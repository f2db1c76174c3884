#pragma once

#include "propertylists/ParsedPropertyList.h"

#include <string>
#include <string_view>

namespace qbsp::propertylists {

/// The property list in each of its formats.
[[nodiscard]] Parsed parsedXML(std::string_view bytes);
[[nodiscard]] Parsed parsedBinary(std::string_view bytes);
[[nodiscard]] Parsed parsedText(std::string_view bytes);

/// The value as XML; dates must be such that XML can express them.
[[nodiscard]] std::string xmlBytes(const platform::Value& value);

/// The value in the binary format, which has every date, and every integer and text.
[[nodiscard]] std::string binaryBytes(const platform::Value& value);

/// What a binary property list begins with.
inline constexpr std::string_view binaryBeginning = "bplist00";

} // namespace qbsp::propertylists

#pragma once

#include "propertylists/ParsedPropertyList.h"

#include <string>
#include <string_view>

namespace qbsp::propertylists {

/// What follows the file's name in a line of the log: "is ...".
[[nodiscard]] std::string_view wordsFor(Fault fault);

/// The property list in the bytes: XML in any encoding, binary, or text as GNUstep and OpenStep write it.
/// Each value keeps its kind; an integer is of the first kind that it fits: 32 bits, 64 bits, unsigned 64
/// bits.
[[nodiscard]] Parsed parsedPropertyList(std::string_view bytes);

/// The value as a property list: XML in UTF-8, with the characters that XML does not have written as GNUstep
/// writes and reads them; binary when it holds a date that XML cannot express. What is read back has the same
/// values.
[[nodiscard]] std::string propertyListBytes(const platform::Value& value);

} // namespace qbsp::propertylists

#pragma once

#include "platform/Value.h"

#include <cstddef>
#include <string>
#include <vector>

/// Property lists as bytes, for tests.
namespace qbsp::propertylists {

/// XML with that root.
[[nodiscard]] std::string xmlWith(const std::string& root);

[[nodiscard]] std::string repeated(const std::string& text, std::size_t times);

/// The text in UTF-16, after a byte-order mark; its characters are ASCII.
[[nodiscard]] std::string utf16Of(const std::string& text, bool bigEndian);

/// A binary list of these objects, the last of which is the root; offsets and references have one byte.
[[nodiscard]] std::string binaryOf(const std::vector<std::string>& objects);

/// A binary list of that many levels, each of which holds the one below so many times; numbers have two
/// bytes.
[[nodiscard]] std::string levelsOf(std::size_t levels, std::size_t times, const std::string& lowest);

/// The bytes with another one at that distance from their end.
[[nodiscard]] std::string changed(std::string bytes, std::size_t fromEnd, char value);

/// A value with every kind that a property list has, as it comes out of a file.
[[nodiscard]] platform::Dictionary everyKind();

} // namespace qbsp::propertylists

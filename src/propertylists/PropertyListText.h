#pragma once

#include "platform/Value.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The leaves of a property list as texts. What is no such text has no value.
namespace qbsp::propertylists {

/// The integer of the first kind that it fits: 32 bits, 64 bits, unsigned 64 bits.
[[nodiscard]] platform::Value narrowestInteger(std::int64_t integer);
[[nodiscard]] platform::Value narrowestInteger(std::uint64_t integer);

/// Decimal, or hexadecimal after "0x"; blanks around it are skipped.
[[nodiscard]] platform::Value integerFrom(std::string_view text);

[[nodiscard]] platform::Value realFrom(std::string_view text);

/// "2001-01-01T00:00:00Z", with any year and any fraction of the second; or "2001-01-01 00:00:00 +0000".
[[nodiscard]] platform::Value dateFrom(std::string_view text);

/// The first of these forms; none for a date that has no four-digit year or no whole second.
[[nodiscard]] std::optional<std::string> textOfDate(const platform::Date& date);

/// The digits of base 64, in the order of their values.
inline constexpr std::string_view base64Digits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// Base 64; blanks anywhere are skipped.
[[nodiscard]] platform::Value dataFrom(std::string_view text);

/// The value of a hexadecimal digit; negative for another character.
[[nodiscard]] int hexadecimalDigit(char character);

/// Appends the character of that code to the text, in UTF-8. False, and nothing appended, for a code that is
/// none.
[[nodiscard]] bool appendCharacter(std::uint32_t code, std::string& text);

/// Whether the code is the first or the second half of a character beyond 16 bits.
[[nodiscard]] bool isFirstHalf(std::uint32_t code);
[[nodiscard]] bool isSecondHalf(std::uint32_t code);
[[nodiscard]] std::uint32_t joinedHalves(std::uint32_t first, std::uint32_t second);

} // namespace qbsp::propertylists

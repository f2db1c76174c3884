#include "propertylists/PropertyListText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <limits>

namespace qbsp::propertylists {

using platform::Data;
using platform::Date;
using platform::Value;

namespace {

constexpr std::string_view blanks = " \t\r\n\v\f";
constexpr std::int64_t secondsOfDay = 86400;
constexpr std::int64_t firstDay = 11323; // the first of January 2001, in days since the first of January 1970

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? ""
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The whole text as a number; the base is for integers alone.
template <class Number, class... Base>
std::optional<Number> numberFrom(std::string_view text, Base... base) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number, base...);
    return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

std::string_view withoutPlus(std::string_view text) {
    return text.starts_with('+') && !text.starts_with("+-") ? text.substr(1) : text;
}

/// Reads a text from its beginning, piece by piece; once a piece is missing, all that follow are.
class Pieces {
public:
    explicit Pieces(std::string_view text) : text_(text) {}

    [[nodiscard]] bool begins(char character) const { return text_.starts_with(character); }

    void skip(char character) {
        fits_ = fits_ && text_.starts_with(character);
        if (fits_)
            text_.remove_prefix(1);
    }

    /// So many decimal digits at least and at most.
    std::int64_t digits(std::size_t least, std::size_t most) {
        const std::size_t count = std::min(text_.find_first_not_of("0123456789"), text_.size());
        const auto number = numberFrom<std::int64_t>(text_.substr(0, count), 10);
        fits_ = fits_ && number && count >= least && count <= most;
        if (!fits_)
            return 0;
        text_.remove_prefix(count);
        return *number;
    }

    /// From the point on, when there is one.
    double fraction() {
        if (!fits_ || !begins('.'))
            return 0;
        const std::size_t end = std::min(text_.find_first_not_of("0123456789", 1), text_.size());
        const auto number = numberFrom<double>("0" + std::string(text_.substr(0, end)));
        fits_ = end > 1 && number;
        text_.remove_prefix(end);
        return number.value_or(0);
    }

    [[nodiscard]] bool fitted() const { return fits_ && text_.empty(); }

private:
    std::string_view text_;
    bool fits_ = true;
};

// Days since the first of January 1970, for any year: the calendar repeats itself every 400 years.
std::int64_t dayOf(std::int64_t year, std::int64_t month, std::int64_t day) {
    using namespace std::chrono;
    constexpr std::int64_t cycle = 400;
    constexpr std::int64_t daysOfCycle = 146097;
    const std::int64_t inCycle = ((year % cycle) + cycle) % cycle;
    const sys_days date = std::chrono::year(static_cast<int>(inCycle) + 2000) /
                          std::chrono::month(static_cast<unsigned>(month)) /
                          std::chrono::day(static_cast<unsigned>(day));
    return date.time_since_epoch().count() + (year - inCycle - 2000) / cycle * daysOfCycle;
}

std::int64_t timeZone(Pieces& pieces) {
    if (!pieces.begins(' ')) {
        pieces.skip('Z');
        return 0;
    }
    pieces.skip(' ');
    const std::int64_t sign = pieces.begins('-') ? -1 : 1;
    pieces.skip(sign < 0 ? '-' : '+');
    const std::int64_t hoursAndMinutes = pieces.digits(4, 4);
    return sign * (hoursAndMinutes / 100 * 3600 + hoursAndMinutes % 100 * 60);
}

// A day may be one too many for its month, and a second 60: both count on into what follows.
bool exists(std::int64_t month, std::int64_t day, std::int64_t hour, std::int64_t minute,
            std::int64_t second) {
    return month >= 1 && month <= 12 && day >= 1 && day <= 31 && hour <= 23 && minute <= 59 && second <= 60;
}

constexpr std::array<std::int16_t, 256> base64Values = [] {
    std::array<std::int16_t, 256> values{};
    values.fill(-1);
    for (std::size_t value = 0; value < base64Digits.size(); ++value)
        values.at(static_cast<unsigned char>(base64Digits[value])) = static_cast<std::int16_t>(value);
    return values;
}();

} // namespace

Value narrowestInteger(std::int64_t integer) {
    const auto narrow = static_cast<std::int32_t>(integer);
    return narrow == integer ? Value(narrow) : Value(integer);
}

Value narrowestInteger(std::uint64_t integer) {
    constexpr std::uint64_t highest = std::numeric_limits<std::int64_t>::max();
    return integer <= highest ? narrowestInteger(static_cast<std::int64_t>(integer)) : Value(integer);
}

Value integerFrom(std::string_view text) {
    text = withoutPlus(trimmed(text));
    const bool isHexadecimal = text.starts_with("0x") || text.starts_with("0X");
    const int base = isHexadecimal ? 16 : 10;
    if (isHexadecimal)
        text.remove_prefix(2);
    if (const auto wide = numberFrom<std::uint64_t>(text, base))
        return narrowestInteger(*wide);
    const auto negative = isHexadecimal ? std::nullopt : numberFrom<std::int64_t>(text, base);
    return negative ? narrowestInteger(*negative) : Value();
}

Value realFrom(std::string_view text) {
    const auto real = numberFrom<double>(withoutPlus(trimmed(text)));
    return real ? Value(*real) : Value();
}

Value dateFrom(std::string_view text) {
    constexpr std::size_t digitsOfYear = 12;
    Pieces pieces(trimmed(text));
    const std::int64_t sign = pieces.begins('-') ? -1 : 1;
    if (sign < 0)
        pieces.skip('-');
    const std::int64_t year = sign * pieces.digits(4, digitsOfYear);
    pieces.skip('-');
    const std::int64_t month = pieces.digits(2, 2);
    pieces.skip('-');
    const std::int64_t day = pieces.digits(2, 2);
    pieces.skip(pieces.begins(' ') ? ' ' : 'T');
    const std::int64_t hour = pieces.digits(2, 2);
    pieces.skip(':');
    const std::int64_t minute = pieces.digits(2, 2);
    pieces.skip(':');
    const std::int64_t second = pieces.digits(2, 2);
    const double fraction = pieces.fraction();
    const std::int64_t east = timeZone(pieces);
    if (!pieces.fitted() || !exists(month, day, hour, minute, second))
        return {};
    const std::int64_t days = dayOf(year, month, day) - firstDay;
    const std::int64_t seconds = days * secondsOfDay + hour * 3600 + minute * 60 + second - east;
    return Date{static_cast<double>(seconds) + fraction};
}

std::optional<std::string> textOfDate(const Date& date) {
    using namespace std::chrono;
    constexpr double farthest = 400'000'000'000; // more than 12,000 years
    const double instant = date.secondsSinceReferenceDate;
    if (!(std::abs(instant) < farthest) || std::trunc(instant) != instant)
        return std::nullopt;
    const sys_seconds moment(seconds(static_cast<std::int64_t>(instant) + firstDay * secondsOfDay));
    const sys_days day = floor<days>(moment);
    const year_month_day calendar(day);
    const hh_mm_ss time(moment - day);
    const int year = static_cast<int>(calendar.year());
    if (year < 1 || year > 9999)
        return std::nullopt;
    std::array<char, 64> text{};
    const int length =
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): this library has no std::format yet.
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", year,
                      static_cast<unsigned>(calendar.month()), static_cast<unsigned>(calendar.day()),
                      static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                      static_cast<int>(time.seconds().count()));
    return std::string(text.data(), static_cast<std::size_t>(length));
}

Value dataFrom(std::string_view text) {
    Data data;
    std::uint32_t bits = 0;
    int count = 0;
    for (const char character : text.substr(0, text.find('='))) {
        if (blanks.find(character) != std::string_view::npos)
            continue;
        const int value = base64Values.at(static_cast<unsigned char>(character));
        if (value < 0)
            return {};
        bits = (bits << 6U | static_cast<std::uint32_t>(value)) & 0xFFFFFFU;
        count += 6;
        if (count < 8)
            continue;
        count -= 8;
        data.push_back(static_cast<std::byte>(bits >> static_cast<unsigned>(count) & 0xFFU));
    }
    return data;
}

int hexadecimalDigit(char character) {
    constexpr std::string_view digits = "0123456789abcdef0123456789ABCDEF";
    const auto place = digits.find(character);
    return place == std::string_view::npos ? -1 : static_cast<int>(place % 16);
}

bool isFirstHalf(std::uint32_t code) {
    return code >= 0xD800 && code < 0xDC00;
}

bool isSecondHalf(std::uint32_t code) {
    return code >= 0xDC00 && code < 0xE000;
}

std::uint32_t joinedHalves(std::uint32_t first, std::uint32_t second) {
    return 0x10000 + ((first - 0xD800) << 10U) + (second - 0xDC00);
}

bool appendCharacter(std::uint32_t code, std::string& text) {
    const auto append = [&](std::uint32_t byte) {
        text += static_cast<char>(byte);
    };
    const auto appendRest = [&](unsigned bytes) {
        for (unsigned rest = bytes; rest-- > 0;)
            append(0x80U | (code >> (6 * rest) & 0x3FU));
    };
    if (isFirstHalf(code) || isSecondHalf(code) || code > 0x10FFFF)
        return false;
    const unsigned rest = code < 0x80 ? 0 : code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr std::array<std::uint32_t, 4> marks{0, 0xC0, 0xE0, 0xF0};
    append(marks.at(rest) | code >> (6 * rest));
    appendRest(rest);
    return true;
}

} // namespace qbsp::propertylists

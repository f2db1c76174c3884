#include "scenario/Decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace qbsp::scenario {

namespace {

bool areDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::string withoutLeadingZeros(std::string_view digits) {
    return std::string(digits.substr(std::min(digits.find_first_not_of('0'), digits.size())));
}

std::string withoutTrailingZeros(std::string_view digits) {
    return std::string(digits.substr(0, digits.find_last_not_of('0') + 1));
}

/// The sum of two numbers with equally many digits, with one digit more than these.
std::string sumOfDigits(const std::string& first, const std::string& second) {
    std::string sum(first.size() + 1, '0');
    int carry = 0;
    for (std::size_t i = first.size(); i-- > 0;) {
        const int digit = (first[i] - '0') + (second[i] - '0') + carry;
        sum[i + 1] = static_cast<char>('0' + digit % 10);
        carry = digit / 10;
    }
    sum[0] = static_cast<char>('0' + carry);
    return sum;
}

} // namespace

std::optional<Decimal> Decimal::parse(std::string_view digits) {
    const auto point = digits.find('.');
    const std::string_view whole = digits.substr(0, point);
    const std::string_view fraction = point == std::string_view::npos ? "0" : digits.substr(point + 1);
    if (!areDigits(whole) || !areDigits(fraction))
        return std::nullopt;
    Decimal decimal;
    decimal.whole_ = withoutLeadingZeros(whole);
    decimal.fraction_ = withoutTrailingZeros(fraction);
    return decimal;
}

Decimal Decimal::of(double number) {
    std::array<char, 512> buffer{};
    const char* const end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed).ptr;
    return parse({buffer.data(), static_cast<std::size_t>(end - buffer.data())}).value();
}

double Decimal::toDouble() const {
    const std::string text = "0" + whole_ + "." + fraction_ + "0";
    const std::string_view digits = text;
    double number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool isTooLarge = error != std::errc() && !whole_.empty();
    return isTooLarge ? std::numeric_limits<double>::infinity() : number;
}

Decimal Decimal::operator+(const Decimal& other) const {
    const auto wholeDigits = std::max(whole_.size(), other.whole_.size());
    const auto fractionDigits = std::max(fraction_.size(), other.fraction_.size());
    const auto padded = [&](const Decimal& number) {
        return std::string(wholeDigits - number.whole_.size(), '0') + number.whole_ + number.fraction_ +
               std::string(fractionDigits - number.fraction_.size(), '0');
    };
    const std::string sum = sumOfDigits(padded(*this), padded(other));
    Decimal result;
    result.whole_ = withoutLeadingZeros(std::string_view(sum).substr(0, wholeDigits + 1));
    result.fraction_ = withoutTrailingZeros(std::string_view(sum).substr(wholeDigits + 1));
    return result;
}

std::strong_ordering operator<=>(const Decimal& first, const Decimal& second) {
    if (first.whole_.size() != second.whole_.size())
        return first.whole_.size() <=> second.whole_.size();
    if (first.whole_ != second.whole_)
        return first.whole_ <=> second.whole_;
    return first.fraction_ <=> second.fraction_;
}

} // namespace qbsp::scenario

#include "platform/Value.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>
#include <string_view>
#include <type_traits>

namespace qbsp::platform {

namespace {

constexpr std::string_view decimalDigits = "0123456789";

std::string_view withoutLeading(std::string_view text, std::string_view characters) {
    return text.substr(std::min(text.find_first_not_of(characters), text.size()));
}

bool beginsWithOneOf(std::string_view text, std::string_view characters) {
    return !text.empty() && characters.find(text.front()) != std::string_view::npos;
}

std::string_view withoutSign(std::string_view text) {
    return beginsWithOneOf(text, "+-") ? text.substr(1) : text;
}

std::int32_t leadingInteger(std::string_view text) {
    constexpr std::int64_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
    const std::string_view number = withoutLeading(text, " ");
    const std::int64_t sign = number.starts_with('-') ? -1 : 1;
    std::int64_t value = 0;
    for (const char character : withoutSign(number)) {
        const auto digit = decimalDigits.find(character);
        if (digit == std::string_view::npos)
            break;
        value = std::clamp(value * 10 + sign * static_cast<std::int64_t>(digit), lowest, highest);
    }
    return static_cast<std::int32_t>(value);
}

std::int32_t low32Bits(double number) {
    constexpr double twoTo32 = 4294967296.0;
    if (!std::isfinite(number))
        return 0;
    return static_cast<std::int32_t>(static_cast<std::int64_t>(std::fmod(std::trunc(number), twoTo32)));
}

bool meansYes(std::string_view text) {
    const std::string_view answer = withoutLeading(text, " ");
    return beginsWithOneOf(answer, "YyTt") ||
           beginsWithOneOf(withoutLeading(withoutSign(answer), "0"), "123456789");
}

} // namespace

std::int32_t Value::intValue() const {
    return visit([](const auto& kind) -> std::int32_t {
        using T = std::remove_cvref_t<decltype(kind)>;
        if constexpr (std::is_integral_v<T>)
            return static_cast<std::int32_t>(kind);
        else if constexpr (std::is_same_v<T, double>)
            return low32Bits(kind);
        else if constexpr (std::is_same_v<T, std::string>)
            return leadingInteger(kind);
        else
            return 0;
    });
}

std::uint32_t Value::unsignedIntValue() const {
    return static_cast<std::uint32_t>(intValue());
}

bool Value::boolValue() const {
    return visit([](const auto& kind) -> bool {
        using T = std::remove_cvref_t<decltype(kind)>;
        if constexpr (std::is_arithmetic_v<T>)
            return kind != T{};
        else if constexpr (std::is_same_v<T, std::string>)
            return meansYes(kind);
        else
            return false;
    });
}

Value entry(const Dictionary& dictionary, const std::string& name) {
    const auto found = dictionary.find(name);
    return found == dictionary.end() ? Value() : found->second;
}

std::optional<std::string> stringEntry(const Dictionary& dictionary, const std::string& name) {
    const Value value = entry(dictionary, name);
    const auto* text = value.as<std::string>();
    return text == nullptr ? std::nullopt : std::optional(*text);
}

} // namespace qbsp::platform

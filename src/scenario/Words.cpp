#include "scenario/Words.h"

#include "scenario/Json.h"
#include "scenario/ScenarioError.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <limits>

namespace qbsp::scenario {

namespace {

std::string_view withoutLeadingSpaces(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

/// Where the JSON string that begins the text ends, its closing quote included.
std::size_t endOfString(std::string_view text) {
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == '"')
            return i + 1;
        if (text[i] == '\\')
            ++i;
    }
    throw ScenarioError("a string without an end");
}

struct WholeNumber {
    bool negative = false;
    std::uint64_t magnitude = 0;
};

WholeNumber wholeNumber(const std::string& text) {
    std::string_view digits = text;
    WholeNumber number;
    number.negative = digits.starts_with('-');
    digits.remove_prefix(number.negative ? 1 : 0);
    const int base = digits.starts_with("0x") ? 16 : 10;
    digits.remove_prefix(base == 16 ? 2 : 0);
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number.magnitude, base);
    if (error != std::errc() || end != digits.data() + digits.size())
        throw ScenarioError("not a whole number of 64 bits: " + jsonText(text));
    return number;
}

} // namespace

Argument Words::argument() {
    if (rest_.empty())
        throw ScenarioError("an argument is missing");
    if (rest_.starts_with('"'))
        return quotedArgument();
    const auto end = std::min(rest_.find(' '), rest_.size());
    Argument argument{std::string(rest_.substr(0, end))};
    rest_ = withoutLeadingSpaces(rest_.substr(end));
    return argument;
}

Argument Words::quotedArgument() {
    const auto end = endOfString(rest_);
    if (end < rest_.size() && rest_[end] != ' ')
        throw ScenarioError("a string that does not end its argument");
    Argument argument{parseJson(rest_.substr(0, end)).get<std::string>(), true};
    rest_ = withoutLeadingSpaces(rest_.substr(end));
    return argument;
}

std::string Words::word() {
    const Argument next = argument();
    if (next.quoted)
        throw ScenarioError("a string where a word is expected: " + jsonText(next.text));
    return next.text;
}

std::string Words::oneOf(const std::vector<std::string_view>& words) {
    std::string next = word();
    if (std::ranges::find(words, next) == words.end())
        throw ScenarioError("an unexpected word: " + jsonText(next));
    return next;
}

bool Words::boolean() {
    return oneOf({"true", "false"}) == "true";
}

std::string Words::text() {
    return argument().text;
}

std::optional<std::string> Words::textOrNull() {
    const Argument next = argument();
    return next.text == "null" && !next.quoted ? std::nullopt : std::optional(next.text);
}

std::int64_t Words::signed64() {
    const std::string text = word();
    const WholeNumber number = wholeNumber(text);
    constexpr auto highest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (number.magnitude > highest + (number.negative ? 1 : 0))
        throw ScenarioError("not a signed number of 64 bits: " + jsonText(text));
    return static_cast<std::int64_t>(number.negative ? 0 - number.magnitude : number.magnitude);
}

std::uint64_t Words::unsigned64() {
    const std::string text = word();
    const WholeNumber number = wholeNumber(text);
    if (number.negative && number.magnitude != 0)
        throw ScenarioError("not an unsigned number of 64 bits: " + jsonText(text));
    return number.magnitude;
}

std::int32_t Words::signed32() {
    const std::int64_t number = signed64();
    if (number < std::numeric_limits<std::int32_t>::min() ||
        number > std::numeric_limits<std::int32_t>::max())
        throw ScenarioError("not a signed number of 32 bits: " + std::to_string(number));
    return static_cast<std::int32_t>(number);
}

Decimal Words::seconds() {
    const std::string text = word();
    const auto seconds = Decimal::parse(text);
    if (!seconds)
        throw ScenarioError("not a number of seconds: " + jsonText(text));
    return *seconds;
}

nlohmann::json Words::value() {
    if (rest_.empty())
        throw ScenarioError("a value is missing");
    auto value = parseJson(rest_);
    rest_ = {};
    return value;
}

void Words::finish() const {
    if (!rest_.empty())
        throw ScenarioError("something is left over: " + jsonText(rest_));
}

} // namespace qbsp::scenario

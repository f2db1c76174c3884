#include "simulated/Json.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>

namespace qbsp::simulated {

namespace {

using platform::Array;
using platform::Dictionary;
using platform::Value;

/// Deep enough for any settings file; a text nested deeper is refused rather than followed.
constexpr int deepestNesting = 200;

std::string joined(const std::vector<std::string>& parts, char open, char close) {
    std::string text(1, open);
    for (const std::string& part : parts)
        text += (text.size() > 1 ? ", " : "") + part;
    return text + close;
}

/// True for a text that stands in JSON as it is, as almost all of them do: the library is slow to find that
/// out.
bool isPlain(std::string_view text) {
    return std::ranges::all_of(text, [](char character) {
        return character >= ' ' && character < '\x7f' && character != '"' && character != '\\';
    });
}

/// The digits of the shortest decimal that reads back the same, and the power of ten of the first.
struct ShortestDecimal {
    std::string digits;
    int exponent = 0;
};

ShortestDecimal shortestDecimal(double number) {
    std::array<char, 64> buffer{};
    const char* const end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::scientific)
            .ptr;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const auto e = text.find('e');
    ShortestDecimal decimal;
    for (const char character : text.substr(0, e))
        if (character != '.')
            decimal.digits += character;
    decimal.exponent = std::stoi(std::string(text.substr(e + 1)));
    return decimal;
}

std::string withExponent(const ShortestDecimal& decimal) {
    std::string text = decimal.digits.substr(0, 1);
    if (decimal.digits.size() > 1)
        text += "." + decimal.digits.substr(1);
    const std::string power = std::to_string(std::abs(decimal.exponent));
    return text + (decimal.exponent < 0 ? "e-" : "e+") + (power.size() < 2 ? "0" : "") + power;
}

std::string withPoint(const ShortestDecimal& decimal) {
    if (decimal.exponent < 0)
        return "0." + std::string(static_cast<std::size_t>(-decimal.exponent - 1), '0') + decimal.digits;
    const auto whole = static_cast<std::size_t>(decimal.exponent) + 1;
    std::string digits = decimal.digits;
    if (digits.size() < whole + 1)
        digits.resize(whole + 1, '0');
    return digits.substr(0, whole) + "." + digits.substr(whole);
}

std::string realText(double number) {
    constexpr int lowestWithPoint = -4;
    constexpr int lowestLargeWithExponent = 16;
    const std::string sign = std::signbit(number) ? "-" : "";
    const ShortestDecimal decimal = shortestDecimal(std::fabs(number));
    const bool plain = decimal.exponent >= lowestWithPoint && decimal.exponent < lowestLargeWithExponent;
    return sign + (plain ? withPoint(decimal) : withExponent(decimal));
}

struct Printer {
    std::string operator()(std::monostate) const { return "null"; }

    std::string operator()(bool boolean) const { return boolean ? "true" : "false"; }

    std::string operator()(double real) const { return realText(real); }

    std::string operator()(const std::string& text) const { return jsonText(text); }

    std::string operator()(const platform::Date& date) const {
        return realText(date.secondsSinceReferenceDate);
    }

    std::string operator()(const platform::Data& data) const { return json(Value(Array(data.size(), 0))); }

    template <std::integral Integer>
    std::string operator()(Integer integer) const {
        return std::to_string(integer);
    }

    std::string operator()(const Array& array) const {
        std::vector<std::string> parts;
        for (const Value& element : array)
            parts.push_back(json(element));
        return joined(parts, '[', ']');
    }

    std::string operator()(const Dictionary& dictionary) const {
        std::vector<std::string> parts;
        for (const auto& [key, value] : dictionary)
            parts.push_back(jsonText(key) + ": " + json(value));
        return joined(parts, '{', '}');
    }
};

Value converted(const nlohmann::json& parsed, int depth);

Value convertedArray(const nlohmann::json& parsed, int depth) {
    Array array;
    for (const auto& element : parsed)
        array.push_back(converted(element, depth));
    return array;
}

Value convertedObject(const nlohmann::json& parsed, int depth) {
    Dictionary dictionary;
    for (const auto& [key, element] : parsed.items())
        dictionary.emplace(key, converted(element, depth));
    return dictionary;
}

Value convertedInteger(const nlohmann::json& parsed) {
    if (parsed.is_number_unsigned() && parsed.get<std::uint64_t>() > INT64_MAX)
        return parsed.get<std::uint64_t>();
    return parsed.get<std::int64_t>();
}

Value converted(const nlohmann::json& parsed, int depth) {
    if (depth > deepestNesting)
        throw std::invalid_argument("nested too deeply");
    switch (parsed.type()) {
    case nlohmann::json::value_t::boolean:
        return parsed.get<bool>();
    case nlohmann::json::value_t::number_integer:
    case nlohmann::json::value_t::number_unsigned:
        return convertedInteger(parsed);
    case nlohmann::json::value_t::number_float:
        return parsed.get<double>();
    case nlohmann::json::value_t::string:
        return parsed.get<std::string>();
    case nlohmann::json::value_t::array:
        return convertedArray(parsed, depth + 1);
    case nlohmann::json::value_t::object:
        return convertedObject(parsed, depth + 1);
    default:
        throw std::invalid_argument("null inside a value");
    }
}

/// Refuses whole numbers that 64 bits cannot hold: the library would read them as reals.
class WholeNumbersFit final : public nlohmann::json::json_sax_t {
public:
    bool number_float(double, const std::string& text) override {
        return text.find_first_of(".eE") != std::string::npos;
    }

    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception&) override {
        return false;
    }

    bool null() override { return true; }

    bool boolean(bool) override { return true; }

    bool number_integer(std::int64_t) override { return true; }

    bool number_unsigned(std::uint64_t) override { return true; }

    bool string(std::string&) override { return true; }

    bool binary(nlohmann::json::binary_t&) override { return true; }

    bool start_object(std::size_t) override { return true; }

    bool key(std::string&) override { return true; }

    bool end_object() override { return true; }

    bool start_array(std::size_t) override { return true; }

    bool end_array() override { return true; }
};

} // namespace

std::string json(const Value& value) {
    return std::visit(Printer(), value.kind());
}

bool isUtf8(std::string_view text) {
    try {
        return !nlohmann::json(text).dump().empty();
    } catch (const nlohmann::json::type_error&) {
        return false;
    }
}

std::string jsonText(std::string_view text) {
    if (isPlain(text))
        return '"' + std::string(text) + '"';
    return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string jsonTextOrNull(const std::optional<std::string>& text) {
    return text ? jsonText(*text) : "null";
}

Value parseJson(std::string_view text) {
    WholeNumbersFit check;
    if (!nlohmann::json::sax_parse(text, &check))
        throw std::invalid_argument("not a JSON value");
    const auto parsed = nlohmann::json::parse(text);
    return parsed.is_null() ? Value() : converted(parsed, 0);
}

} // namespace qbsp::simulated

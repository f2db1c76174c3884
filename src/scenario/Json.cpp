#include "scenario/Json.h"

#include "scenario/ScenarioError.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace qbsp::scenario {

namespace {

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

/// Reads a JSON text for what the library would accept and a scenario may not hold.
class Check final : public nlohmann::json::json_sax_t {
public:
    [[nodiscard]] const std::string& problem() const { return problem_; }

    // The library takes a whole number that 64 bits cannot hold for a real.
    bool number_float(double, const std::string& text) override {
        return text.find_first_of(".eE") != std::string::npos || refuse("a number that 64 bits cannot hold");
    }

    bool null() override { return depth_ == 0 || refuse("null inside a value"); }

    bool start_object(std::size_t) override { return goDeeper(); }

    bool end_object() override { return goBack(); }

    bool start_array(std::size_t) override { return goDeeper(); }

    bool end_array() override { return goBack(); }

    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception&) override {
        return false;
    }

    bool boolean(bool) override { return true; }

    bool number_integer(std::int64_t) override { return true; }

    bool number_unsigned(std::uint64_t) override { return true; }

    bool string(std::string&) override { return true; }

    bool binary(nlohmann::json::binary_t&) override { return true; }

    bool key(std::string&) override { return true; }

private:
    /// Deep enough for any settings file; a text nested deeper is refused rather than followed.
    static constexpr int deepestNesting = 200;

    bool refuse(const char* problem) {
        problem_ = problem;
        return false;
    }

    bool goDeeper() { return ++depth_ <= deepestNesting || refuse("nested too deeply"); }

    bool goBack() {
        --depth_;
        return true;
    }

    std::string problem_ = "not a JSON value";
    int depth_ = 0;
};

} // namespace

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

std::string jsonBoolean(bool boolean) {
    return boolean ? "true" : "false";
}

std::string jsonReal(double number) {
    constexpr int lowestWithPoint = -4;
    constexpr int lowestLargeWithExponent = 16;
    const std::string sign = std::signbit(number) ? "-" : "";
    const ShortestDecimal decimal = shortestDecimal(std::fabs(number));
    const bool plain = decimal.exponent >= lowestWithPoint && decimal.exponent < lowestLargeWithExponent;
    return sign + (plain ? withPoint(decimal) : withExponent(decimal));
}

std::string jsonArray(const std::vector<std::string>& elements) {
    std::string text = "[";
    for (const std::string& element : elements)
        text += (text.size() > 1 ? ", " : "") + element;
    return text + "]";
}

std::string jsonObject(const std::map<std::string, std::string>& members) {
    std::string text = "{";
    for (const auto& [key, value] : members)
        text.append(text.size() > 1 ? ", " : "").append(jsonText(key)).append(": ").append(value);
    return text + "}";
}

nlohmann::json parseJson(std::string_view text) {
    Check check;
    if (!nlohmann::json::sax_parse(text, &check))
        throw ScenarioError("malformed value: " + check.problem());
    return nlohmann::json::parse(text);
}

} // namespace qbsp::scenario

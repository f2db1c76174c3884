#include "simulated/Json.h"

#include <nlohmann/json.hpp>

#include <concepts>
#include <cstdint>
#include <map>
#include <vector>

namespace qbsp::simulated {

namespace {

using platform::Array;
using platform::Dictionary;
using platform::Value;

struct Printer {
    std::string operator()(std::monostate) const { return "null"; }

    std::string operator()(bool boolean) const { return scenario::jsonBoolean(boolean); }

    std::string operator()(double real) const { return scenario::jsonReal(real); }

    std::string operator()(const std::string& text) const { return jsonText(text); }

    std::string operator()(const platform::Date& date) const {
        return scenario::jsonReal(date.secondsSinceReferenceDate);
    }

    std::string operator()(const platform::Data& data) const { return json(Value(Array(data.size(), 0))); }

    template <std::integral Integer>
    std::string operator()(Integer integer) const {
        return std::to_string(integer);
    }

    std::string operator()(const Array& array) const {
        std::vector<std::string> elements;
        for (const Value& element : array)
            elements.push_back(json(element));
        return scenario::jsonArray(elements);
    }

    std::string operator()(const Dictionary& dictionary) const {
        std::map<std::string, std::string> members;
        for (const auto& [key, value] : dictionary)
            members.emplace(key, json(value));
        return scenario::jsonObject(members);
    }
};

Value arrayOf(const nlohmann::json& parsed) {
    Array array;
    for (const auto& element : parsed)
        array.push_back(valueOf(element));
    return array;
}

Value dictionaryOf(const nlohmann::json& parsed) {
    Dictionary dictionary;
    for (const auto& [key, element] : parsed.items())
        dictionary.emplace(key, valueOf(element));
    return dictionary;
}

Value integerOf(const nlohmann::json& parsed) {
    if (parsed.is_number_unsigned() && parsed.get<std::uint64_t>() > INT64_MAX)
        return parsed.get<std::uint64_t>();
    return parsed.get<std::int64_t>();
}

} // namespace

std::string json(const Value& value) {
    return value.visit(Printer());
}

Value valueOf(const nlohmann::json& parsed) {
    switch (parsed.type()) {
    case nlohmann::json::value_t::boolean:
        return parsed.get<bool>();
    case nlohmann::json::value_t::number_integer:
    case nlohmann::json::value_t::number_unsigned:
        return integerOf(parsed);
    case nlohmann::json::value_t::number_float:
        return parsed.get<double>();
    case nlohmann::json::value_t::string:
        return parsed.get<std::string>();
    case nlohmann::json::value_t::array:
        return arrayOf(parsed);
    case nlohmann::json::value_t::object:
        return dictionaryOf(parsed);
    default:
        return {};
    }
}

} // namespace qbsp::simulated

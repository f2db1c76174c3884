#include "simulated/Arguments.h"

#include "simulated/Json.h"
#include "sorter/SorterIdentity.h"

#include <nlohmann/json.hpp>

#include <map>

namespace qbsp::simulated {

namespace {

const std::map<std::string, platform::BundleIdentifier, std::less<>> identifierWords = {
    {"full", SorterBundleIdentifier},
    {"solo", SoloSorterBundleIdentifier},
    {"embedded", SorterLoginItemIdentifier}};

std::string identifierOf(const scenario::Argument& argument) {
    const auto word = identifierWords.find(argument.text);
    return argument.quoted || word == identifierWords.end() ? argument.text : std::string(word->second.text);
}

} // namespace

std::string takeIdentifier(scenario::Words& words) {
    return identifierOf(words.argument());
}

std::optional<std::string> takeIdentifierOrNull(scenario::Words& words) {
    const scenario::Argument argument = words.argument();
    return argument.text == "null" && !argument.quoted ? std::nullopt : std::optional(identifierOf(argument));
}

platform::Value takeValue(scenario::Words& words) {
    return valueOf(words.value());
}

} // namespace qbsp::simulated

// Any value that the adapters can hand to the writer is read again as it was, in both formats.

#include "Require.h"
#include "SameValue.h"
#include "propertylists/PropertyList.h"
#include "propertylists/PropertyListFormats.h"
#include "propertylists/PropertyListText.h"

#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <string>

namespace qbsp::fuzz {

namespace {

using platform::Array;
using platform::Dictionary;
using platform::Value;

std::string someText(FuzzedDataProvider& input) {
    std::string text;
    for (auto left = input.ConsumeIntegralInRange<unsigned>(0, 8); left > 0; --left)
        std::ignore = propertylists::appendCharacter(
            input.ConsumeIntegral<std::uint32_t>() >> input.ConsumeIntegralInRange(0U, 31U), text);
    return text;
}

platform::Data someData(FuzzedDataProvider& input) {
    return input.ConsumeBytes<std::byte>(input.ConsumeIntegralInRange<std::size_t>(0, 20));
}

Value someValue(FuzzedDataProvider& input, int depth);

Array someArray(FuzzedDataProvider& input, int depth) {
    Array array;
    for (auto left = input.ConsumeIntegralInRange<unsigned>(0, 20); left > 0; --left)
        array.push_back(someValue(input, depth - 1));
    return array;
}

Dictionary someDictionary(FuzzedDataProvider& input, int depth) {
    Dictionary dictionary;
    for (auto left = input.ConsumeIntegralInRange<unsigned>(0, 20); left > 0; --left)
        dictionary[someText(input)] = someValue(input, depth - 1);
    return dictionary;
}

Value someValue(FuzzedDataProvider& input, int depth) {
    switch (input.ConsumeIntegralInRange<unsigned>(0, depth > 0 ? 8 : 6)) {
    case 0:
        return input.ConsumeBool();
    case 1:
        return propertylists::narrowestInteger(input.ConsumeIntegral<std::int64_t>());
    case 2:
        return propertylists::narrowestInteger(input.ConsumeIntegral<std::uint64_t>());
    case 3:
        return input.ConsumeFloatingPoint<double>();
    case 4:
        return platform::Date{input.ConsumeFloatingPoint<double>()};
    case 5:
        return someData(input);
    case 6:
        return someText(input);
    case 7:
        return someArray(input, depth);
    default:
        return someDictionary(input, depth);
    }
}

void checkIsRead(const std::string& bytes, const Value& value) {
    const auto parsed = propertylists::parsedPropertyList(bytes);
    const auto* const same = std::get_if<Value>(&parsed);
    require(same != nullptr, "what is written is read");
    require(isSame(*same, value), "what is read is what was written");
}

} // namespace

} // namespace qbsp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace qbsp;
    FuzzedDataProvider input(data, size);
    constexpr int depth = 4;
    const platform::Value value = fuzz::someValue(input, depth);
    fuzz::checkIsRead(propertylists::propertyListBytes(value), value);
    fuzz::checkIsRead(propertylists::binaryBytes(value), value);
    return 0;
}

// Any bytes are read as a property list or refused; and what was read is written so that it is read again as
// it was.

#include "Input.h"
#include "Require.h"
#include "SameValue.h"
#include "propertylists/PropertyList.h"

#include <cstddef>
#include <cstdint>
#include <variant>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace qbsp;
    const auto parsed = propertylists::parsedPropertyList(fuzz::textOf(data, size));
    const auto* const value = std::get_if<platform::Value>(&parsed);
    if (value == nullptr)
        return 0;
    fuzz::require(value->exists(), "what is read is a value");
    const auto again = propertylists::parsedPropertyList(propertylists::propertyListBytes(*value));
    const auto* const same = std::get_if<platform::Value>(&again);
    fuzz::require(same != nullptr, "what is written is read");
    fuzz::require(fuzz::isSame(*same, *value), "what is read again is what was written");
    return 0;
}

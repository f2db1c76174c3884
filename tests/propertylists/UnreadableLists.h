#pragma once

#include "propertylists/ParsedPropertyList.h"

#include <string>
#include <vector>

namespace qbsp::propertylists {

/// Bytes that are no property list, by accident or by intent.
struct Unreadable {
    std::string name;
    std::string bytes;
    Fault fault = Fault::notAPropertyList;
};

[[nodiscard]] std::vector<Unreadable> unreadableLists();

} // namespace qbsp::propertylists

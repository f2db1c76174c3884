#pragma once

#include "platform/PropertyLists.h"
#include "platform/Value.h"

#include <optional>
#include <string>

namespace qbsp {

/// The hide list that the Sorter application at that path carries in its factory defaults, of whatever kind
/// it is; no value when there is no path, no such file, or no list in it.
[[nodiscard]] platform::Value factoryHideFlags(const std::optional<std::string>& sorterPath,
                                               const platform::PropertyLists& propertyLists);

} // namespace qbsp

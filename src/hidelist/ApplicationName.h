#pragma once

#include "platform/FileManager.h"
#include "platform/PropertyLists.h"
#include "platform/StringComparison.h"

#include <optional>
#include <string>

namespace qbsp {

/// The name under which the Sorter knows the application in that bundle: its executable's name; its bundle
/// name when the executable is the Java launcher or is not named; and for a bundle that is no longer there,
/// its file name without the extension. None when the bundle says neither.
[[nodiscard]] std::optional<std::string> applicationName(const platform::URL& bundle,
                                                         const platform::FileManager& files,
                                                         const platform::PropertyLists& propertyLists,
                                                         const platform::StringComparison& strings);

} // namespace qbsp

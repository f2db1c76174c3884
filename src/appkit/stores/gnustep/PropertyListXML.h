#pragma once

#include "platform/Value.h"

#include <string>

namespace qbsp::appkit {

/// The value as an XML property list in UTF-8, each kind as itself, reals to the last digit. Characters
/// that XML does not have are written as GNUstep writes and reads them.
[[nodiscard]] std::string propertyListXML(const platform::Value& value);

} // namespace qbsp::appkit

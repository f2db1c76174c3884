#pragma once

#include "platform/Name.h"
#include "platform/URL.h"

#include <optional>

namespace qbsp::appkit {

/// The container of an application group, which need not exist yet; none for a process outside the group.
[[nodiscard]] std::optional<platform::URL> groupContainerURL(platform::ApplicationGroup group);

} // namespace qbsp::appkit

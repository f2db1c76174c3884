#pragma once

#include "platform/Name.h"
#include "platform/URL.h"

#import <Foundation/Foundation.h>

#include <optional>

namespace qbsp::appkit {

/// The container of an application group, which need not exist yet; none for a process outside the group.
[[nodiscard]] std::optional<platform::URL> groupContainerURL(platform::ApplicationGroup group);

/// The attributes of a folder made in the container; nil for the system's own.
[[nodiscard]] NSDictionary* attributesOfNewFolders();

} // namespace qbsp::appkit

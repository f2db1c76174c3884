#pragma once

#include "platform/FileManager.h"
#include "platform/Log.h"

#include <optional>

namespace qbsp {

/// The folder that the sandboxed host shares with its Sorter, made when it is missing. None when the process
/// has no group container. When it cannot be made, that is logged, and its URL is returned all the same.
[[nodiscard]] std::optional<platform::URL> sharedSorterFolder(platform::FileManager& files,
                                                              platform::Log& log);

} // namespace qbsp

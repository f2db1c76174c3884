#pragma once

#include "platform/FileManager.h"
#include "platform/Log.h"

#include <optional>

namespace qbsp {

/// The folder that the sandboxed host shares with its Sorter, made when it is missing. None when the process
/// has no group container. A failure to make it is logged, and the folder is answered all the same.
[[nodiscard]] std::optional<platform::URL> sharedSorterFolder(platform::FileManager& files,
                                                              platform::Log& log);

} // namespace qbsp

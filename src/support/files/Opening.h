#pragma once

#include "processes/Descriptor.h"

#include <filesystem>
#include <sys/types.h>

namespace files {

/// Opens the file with open()'s flags; what it creates gets the mode, less what the umask takes. A program
/// that is started meanwhile does not inherit it. Not open when that failed; errno says why until the next
/// call.
[[nodiscard]] processes::Descriptor openFile(const std::filesystem::path& file, int flags, mode_t mode = 0);

} // namespace files

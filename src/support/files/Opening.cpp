#include "files/Opening.h"

#include "files/Calls.h"

#include <fcntl.h>

namespace files {

processes::Descriptor openFile(const std::filesystem::path& file, int flags, mode_t mode) {
    return processes::Descriptor(
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system call is declared that way.
        uninterrupted([&] { return open(file.c_str(), flags | O_CLOEXEC, mode); }));
}

} // namespace files

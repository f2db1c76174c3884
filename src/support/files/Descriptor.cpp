#include "files/Descriptor.h"

#include "files/Calls.h"

#include <fcntl.h>
#include <unistd.h>

namespace files {

Descriptor::Descriptor(const std::filesystem::path& file, int flags, mode_t mode)
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system call is declared that way.
    : number_(uninterrupted([&] { return open(file.c_str(), flags | O_CLOEXEC, mode); })) {}

Descriptor::~Descriptor() {
    // Never a second time: the number may be another's by then, also when a signal interrupted the call.
    if (isOpen())
        close(number_);
}

} // namespace files

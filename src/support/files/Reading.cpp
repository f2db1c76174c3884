#include "files/Reading.h"

#include "files/Calls.h"
#include "files/Opening.h"
#include "processes/Descriptor.h"

#include <algorithm>
#include <fcntl.h>
#include <span>
#include <sys/stat.h>
#include <unistd.h>

namespace files {

namespace {

using Outcome = Reading::Outcome;

Reading failed(std::error_code error) {
    return {Outcome::failed, {}, error};
}

Reading notOpened() {
    const bool isAbsent = errno == ENOENT || errno == ENOTDIR;
    return isAbsent ? Reading() : failed(lastError());
}

std::error_code notRegular(mode_t mode) {
    return make_error_code(S_ISDIR(mode) ? std::errc::is_a_directory : std::errc::not_supported);
}

// One byte more than the limit shows that there is more; the size alone does not, because files grow.
Reading readAll(const processes::Descriptor& file, std::size_t size, std::size_t limit) {
    Reading reading{Outcome::contents, std::string(std::min(size, limit) + 1, '\0'), {}};
    std::string& contents = reading.contents;
    std::size_t end = 0;
    for (;;) {
        const std::span room = std::span(contents).subspan(end);
        const auto count = uninterrupted([&] { return read(file.number(), room.data(), room.size()); });
        if (count < 0)
            return failed(lastError());
        end += static_cast<std::size_t>(count);
        if (end > limit)
            return {Outcome::tooLarge, {}, {}};
        if (count == 0)
            break;
        if (end == contents.size())
            contents.resize(std::min(2 * end, limit + 1));
    }
    contents.resize(end);
    return reading;
}

} // namespace

Reading readWhole(const std::filesystem::path& file, std::size_t limit) {
    // A pipe without a writer would make its reader wait.
    const auto descriptor = openFile(file, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (!descriptor.isOpen())
        return notOpened();

    struct stat status {};

    if (fstat(descriptor.number(), &status) != 0)
        return failed(lastError());
    if (!S_ISREG(status.st_mode))
        return failed(notRegular(status.st_mode));
    const auto size = static_cast<std::size_t>(status.st_size);
    return size > limit ? Reading{Outcome::tooLarge, {}, {}} : readAll(descriptor, size, limit);
}

} // namespace files

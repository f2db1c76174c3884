#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>

namespace files {

/// What reading a file came to.
struct Reading {
    enum class Outcome {
        contents, ///< all of it was read
        absent,   ///< there is no such file
        failed,   ///< it could not be opened or read, perhaps only now; nothing is known of its contents
        tooLarge, ///< it is larger than the limit
    };

    Outcome outcome = Outcome::absent;
    std::string contents;
    std::error_code error; ///< why it failed
};

/// Reads the whole file, which is opened once. Anything but a regular file fails, and never makes the caller
/// wait. No more than the limit, in bytes, is held in memory.
[[nodiscard]] Reading readWhole(const std::filesystem::path& file, std::size_t limit);

} // namespace files

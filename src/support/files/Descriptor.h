#pragma once

#include <filesystem>
#include <sys/types.h>

namespace files {

/// An open file, closed with this.
class Descriptor {
public:
    /// Opens the file with open()'s flags; what it creates gets the mode, less what the umask takes. A
    /// program that is started meanwhile does not inherit it.
    explicit Descriptor(const std::filesystem::path& file, int flags, mode_t mode = 0);
    ~Descriptor();
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    /// False when the file could not be opened; errno says why until the next call.
    [[nodiscard]] bool isOpen() const { return number_ >= 0; }

    [[nodiscard]] int number() const { return number_; }

private:
    int number_;
};

} // namespace files

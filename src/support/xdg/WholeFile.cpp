#include "xdg/WholeFile.h"

#include <cstddef>
#include <cstdlib>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace xdg {

namespace {

mode_t modeFor(Readers readers) {
    constexpr mode_t owner = S_IRUSR | S_IWUSR;
    return readers == Readers::owner ? owner : owner | S_IRGRP | S_IROTH;
}

/// A new file beside the one it is to replace; it goes again unless it took that one's place.
class Draft {
public:
    explicit Draft(const std::filesystem::path& target)
        : path_(target.parent_path() / ("." + target.filename().string() + ".XXXXXX")),
          descriptor_(mkstemp(path_.data())) {}

    ~Draft() {
        if (descriptor_ < 0)
            return;
        close(descriptor_);
        if (!placed_)
            unlink(path_.c_str());
    }

    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    [[nodiscard]] bool admit(Readers readers) const { return fchmod(descriptor_, modeFor(readers)) == 0; }

    [[nodiscard]] bool write(std::string_view content) const {
        while (!content.empty()) {
            const auto written = ::write(descriptor_, content.data(), content.size());
            if (written <= 0)
                return false;
            content.remove_prefix(static_cast<std::size_t>(written));
        }
        return fsync(descriptor_) == 0;
    }

    [[nodiscard]] bool replace(const std::filesystem::path& target) {
        placed_ = rename(path_.c_str(), target.c_str()) == 0;
        return placed_;
    }

private:
    std::string path_;
    int descriptor_;
    bool placed_ = false;
};

} // namespace

bool writeWhole(const std::filesystem::path& file, std::string_view content, Readers readers) {
    std::error_code failure;
    std::filesystem::create_directories(file.parent_path(), failure);
    if (failure)
        return false;
    Draft draft(file);
    return draft.admit(readers) && draft.write(content) && draft.replace(file);
}

} // namespace xdg

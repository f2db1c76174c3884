#include "xdg/WholeFile.h"

#include <cstdlib>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace xdg {

namespace {

constexpr mode_t readableByAll = 0644;

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

    [[nodiscard]] bool write(std::string_view content) const {
        if (descriptor_ < 0)
            return false;
        while (!content.empty()) {
            const auto written = ::write(descriptor_, content.data(), content.size());
            if (written <= 0)
                return false;
            content.remove_prefix(static_cast<std::size_t>(written));
        }
        return fchmod(descriptor_, readableByAll) == 0 && fsync(descriptor_) == 0;
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

bool writeWhole(const std::filesystem::path& file, std::string_view content) {
    std::error_code failure;
    std::filesystem::create_directories(file.parent_path(), failure);
    if (failure)
        return false;
    Draft draft(file);
    return draft.write(content) && draft.replace(file);
}

} // namespace xdg

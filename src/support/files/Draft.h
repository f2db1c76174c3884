#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace files {

/// A file that is written beside the one that it is to replace, and takes that one's place whole or not at
/// all. It has the permissions, the owner and the group of the one it replaces, but for a group that the user
/// is not in: then the user's own group may do what everybody may. Without one to replace, its owner alone
/// may read and write it, whatever the umask. It goes with this unless it was put into place; one whose
/// process was killed goes with the next draft of the same file.
class Draft {
public:
    /// The file to replace: not a link, which would be replaced itself.
    explicit Draft(std::filesystem::path target);
    ~Draft();
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    /// Writes the content, has it reach the disk, and reads it back.
    [[nodiscard]] std::error_code write(std::string_view content) const;

    /// Replaces the file. An error may also mean that it was replaced, but that a crash of the machine could
    /// undo it.
    [[nodiscard]] std::error_code place();

private:
    std::filesystem::path target_;
    std::filesystem::path path_;
    bool placed_ = false;
};

/// Writes the file whole or not at all, as a draft; follows a link to the file that it names, and makes the
/// folders that lead to the path.
[[nodiscard]] std::error_code writeWhole(const std::filesystem::path& file, std::string_view content);

} // namespace files

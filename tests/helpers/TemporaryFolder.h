#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

/// A folder of a test's own, removed after the test.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = std::filesystem::temp_directory_path() / "sorter-pane-XXXXXX";
        path_ = mkdtemp(pattern.data());
    }

    ~TemporaryFolder() { std::filesystem::remove_all(path_); }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

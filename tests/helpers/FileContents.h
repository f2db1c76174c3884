#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

/// What a file holds; nothing when it cannot be read. Reads in blocks, since some files are as large as they
/// may be.
[[nodiscard]] inline std::string bytesOf(const std::filesystem::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return std::move(bytes).str();
}

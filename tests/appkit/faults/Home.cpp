#include "Home.h"

#include "FileContents.h"

#include <cstdlib>
#include <fstream>

namespace faults {

namespace fs = std::filesystem;

namespace {

const std::string toTarget = "-> ";

std::string contentOf(const fs::directory_entry& entry) {
    if (entry.is_symlink())
        return toTarget + fs::read_symlink(entry.path()).string();
    return entry.is_directory() ? "" : bytesOf(entry.path());
}

void putOne(const fs::path& path, const std::string& content) {
    fs::create_directories(path.has_extension() ? path.parent_path() : path);
    if (content.starts_with(toTarget))
        fs::create_symlink(content.substr(toTarget.size()), path);
    else if (path.has_extension())
        std::ofstream(path, std::ios::binary) << content;
}

} // namespace

fs::path home() {
    return std::getenv("HOME");
}

Contents contentsOf(const fs::path& folder) {
    Contents contents;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        contents[fs::relative(entry.path(), folder)] = contentOf(entry);
    return contents;
}

void put(const Contents& contents, const fs::path& folder) {
    for (const auto& entry : fs::directory_iterator(folder))
        fs::remove_all(entry.path());
    for (const auto& [name, content] : contents)
        putOne(folder / name, content);
}

} // namespace faults

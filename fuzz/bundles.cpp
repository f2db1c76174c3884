// Whatever describes a bundle, its executable lies in it.

#include "Input.h"
#include "Require.h"
#include "applications/Bundle.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;
using qbsp::fuzz::require;

/// A bundle for this process.
class Folder {
public:
    Folder() {
        std::string name = fs::temp_directory_path() / "bundle-XXXXXX";
        require(mkdtemp(name.data()) != nullptr, "a folder can be made");
        path_ = name;
    }

    ~Folder() { fs::remove_all(path_); }

    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    Folder(Folder&&) = delete;
    Folder& operator=(Folder&&) = delete;

    [[nodiscard]] const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder;
    std::ofstream(folder.path() / "Info.plist") << qbsp::fuzz::textOf(data, size);
    const auto bundle = applications::bundleAt(folder.path());
    require(bundle.has_value(), "a folder is a bundle");
    if (bundle->executable.empty())
        return 0;
    const fs::path inside = bundle->executable.lexically_normal().lexically_relative(folder.path());
    require(!inside.empty() && *inside.begin() != "..", "the executable lies in the bundle");
    return 0;
}

#include "stages/FilesStage.h"

#include "FileContents.h"
#include "appkit/services/FileManager.h"
#include "appkit/stores/PropertyLists.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace qbsp::contracts {

namespace fs = std::filesystem;

namespace {

class AppKitStage final : public FilesStage {
public:
    AppKitStage() { fs::create_directories(folder_); }

    ~AppKitStage() override {
        fs::remove_all(folder_);
        fs::remove_all(away_);
        fs::remove_all(std::getenv("XDG_DATA_HOME"));
    }

    platform::FileManager& files() override { return files_; }

    platform::PropertyLists& propertyLists() override { return propertyLists_; }

    std::string folder() const override { return folder_; }

    void putOtherFile(const std::string& path) override { std::ofstream(path) << "a text\n"; }

    /// A plain file takes the folder's place.
    void block() override {
        fs::rename(folder_, away_);
        putOtherFile(folder_);
    }

    void unblock() override {
        fs::remove(folder_);
        fs::rename(away_, folder_);
    }

    bool isXML(const std::string& path) const override { return bytesOf(path).starts_with("<?xml"); }

private:
    const fs::path folder_ = fs::path(std::getenv("HOME")) / "test files";
    const fs::path away_ = folder_.string() + ".away";
    appkit::AppKitFileManager files_;
    appkit::AppKitPropertyLists propertyLists_;
};

} // namespace

std::unique_ptr<FilesStage> FilesStage::appKit() {
    return std::make_unique<AppKitStage>();
}

} // namespace qbsp::contracts

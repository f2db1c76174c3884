#include "stages/FilesStage.h"

#include "simulated/SimulatedPlatform.h"

namespace qbsp::contracts {

namespace {

class SimulatedStage final : public FilesStage {
public:
    SimulatedStage() { platform_.world.disk.makeFolder(folder()); }

    platform::FileManager& files() override { return platform_.files; }

    platform::PropertyLists& propertyLists() override { return platform_.propertyLists; }

    std::string folder() const override { return "/Users/user/Test"; }

    void putOtherFile(const std::string& path) override { platform_.world.disk.putFile(path); }

    void block() override {
        platform_.world.folderError = "There is no room.";
        platform_.world.writes = false;
    }

    void unblock() override {
        platform_.world.folderError.reset();
        platform_.world.writes = true;
    }

    /// The simulated disk knows property lists of no other format.
    bool isXML(const std::string& path) const override {
        return platform_.world.disk.propertyList(path).has_value();
    }

private:
    simulated::SimulatedPlatform platform_;
};

} // namespace

std::unique_ptr<FilesStage> FilesStage::simulated() {
    return std::make_unique<SimulatedStage>();
}

} // namespace qbsp::contracts

#include "stages/RegistrarStage.h"

#include "appkit/services/HostProcess.h"
#include "appkit/services/Registrar.h"
#include "on_appkit/ContractRegistrar.h"

#include <filesystem>
#include <utility>

namespace qbsp::contracts {

namespace {

class AppKitStage final : public RegistrarStage {
public:
    ~AppKitStage() override { registrarState() = {}; }

    platform::Runtime& runtime() override { return runtime_; }

    platform::Bundles& bundles() override { return bundles_; }

    platform::ClassName loaderWithRegistrar() override { return {"ContractLoader"}; }

    platform::ClassName loaderWithoutRegistrar() override { return {"ContractEmptyLoader"}; }

    platform::ClassName noLoader() override { return {"ContractLoaderThatIsNotThere"}; }

    std::string registrarExecutable() const override {
        return std::filesystem::read_symlink("/proc/self/exe");
    }

    void letRegistrarRefuse() override { registrarState().refuses = true; }

    std::vector<std::string> messages() override { return std::exchange(registrarState().messages, {}); }

private:
    appkit::AppKitRuntime runtime_;
    appkit::AppKitBundles bundles_{[ContractLoader class]};
};

} // namespace

std::unique_ptr<RegistrarStage> RegistrarStage::appKit() {
    // Mentioned so that the linker keeps the classes, which are found by name.
    [ContractLoader class];
    [ContractEmptyLoader class];
    return std::make_unique<AppKitStage>();
}

} // namespace qbsp::contracts

#include "stages/RegistrarStage.h"

#include "simulated/SimulatedPlatform.h"

#include <algorithm>

namespace qbsp::contracts {

namespace {

const std::string receiver = "registrar ";

/// The message in a line of the transcript, "registrar SELECTOR("PATH") -> ANSWER".
std::string messageIn(const std::string& line) {
    const std::string call = line.substr(receiver.size(), line.find(')') - receiver.size());
    std::string message = call.substr(0, call.find('('));
    std::string argument = call.substr(call.find('(') + 1);
    std::erase(argument, '"');
    return argument.empty() ? message : message + " " + argument;
}

class SimulatedStage final : public RegistrarStage {
public:
    platform::Runtime& runtime() override { return platform_.runtime; }

    platform::Bundles& bundles() override { return platform_.bundles; }

    platform::ClassName loaderWithRegistrar() override { return loader(simulated::Loader::present); }

    platform::ClassName loaderWithoutRegistrar() override { return loader(simulated::Loader::empty); }

    platform::ClassName noLoader() override { return loader(simulated::Loader::absent); }

    std::string registrarExecutable() const override { return platform_.world.registrarExecutable; }

    void letRegistrarRefuse() override {
        platform_.world.registrarAdds = false;
        platform_.world.registrarRemoves = false;
    }

    std::vector<std::string> messages() override {
        std::vector<std::string> messages;
        for (const std::string& line : platform_.transcript.take())
            if (line.starts_with(receiver))
                messages.push_back(messageIn(line));
        return messages;
    }

private:
    platform::ClassName loader(simulated::Loader loader) {
        platform_.world.loader = loader;
        return {"QBSPLoader"};
    }

    simulated::SimulatedPlatform platform_;
};

} // namespace

std::unique_ptr<RegistrarStage> RegistrarStage::simulated() {
    return std::make_unique<SimulatedStage>();
}

} // namespace qbsp::contracts

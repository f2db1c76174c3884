#pragma once

#include "platform/FileManager.h"
#include "platform/PropertyLists.h"
#include "simulated/Transcript.h"
#include "simulated/World.h"

namespace qbsp::simulated {

class SimulatedFileManager final : public platform::FileManager {
public:
    SimulatedFileManager(World& world, Transcript& transcript) : world_(world), transcript_(transcript) {}

    std::optional<platform::URL>
    containerURLForSecurityApplicationGroupIdentifier(platform::ApplicationGroup group) override;
    bool fileExistsAtPath(const std::string& path) const override;
    std::optional<std::string> createDirectoryAtURL(const platform::URL& url,
                                                    platform::IntermediateDirectories intermediates) override;

private:
    World& world_;
    Transcript& transcript_;
};

class SimulatedPropertyLists final : public platform::PropertyLists {
public:
    SimulatedPropertyLists(World& world, Transcript& transcript) : world_(world), transcript_(transcript) {}

    std::optional<platform::Dictionary>
    dictionaryWithContentsOfFile(const std::optional<std::string>& path) const override;
    bool writeToURL(const platform::Dictionary& dictionary, const std::optional<platform::URL>& url,
                    platform::Atomically atomically) override;

private:
    World& world_;
    Transcript& transcript_;
};

} // namespace qbsp::simulated

#pragma once

#include "platform/Bundles.h"
#include "platform/Host.h"
#include "platform/Log.h"
#include "platform/PreferencePaneBase.h"
#include "platform/ProcessInfo.h"
#include "platform/Runtime.h"
#include "simulated/Transcript.h"
#include "simulated/World.h"
#include "sorter/QBSPSorterControl.h"

namespace qbsp::simulated {

class SimulatedHost final : public platform::Host {
public:
    SimulatedHost(const World& world, Transcript& transcript) : world_(world), transcript_(transcript) {}

    bool isSandboxed() const override;
    bool isPro() const override;

private:
    const World& world_;
    Transcript& transcript_;
};

class SimulatedProcessInfo final : public platform::ProcessInfo {
public:
    explicit SimulatedProcessInfo(const World& world) : world_(world) {}

    std::string processName() const override { return world_.processName; }

private:
    const World& world_;
};

class SimulatedRegistrar final : public QBSPSorterControl {
public:
    SimulatedRegistrar(World& world, Transcript& transcript) : world_(world), transcript_(transcript) {}

    bool applicationIsRegistered(const std::optional<platform::URL>& application) override;
    bool registerApplication(const std::optional<platform::URL>& application) override;
    bool unregisterApplication(const std::optional<platform::URL>& application) override;
    void showAccountsSystemPreferencePane() override;
    void showSorterApplication() override;
    void closeSorterApplication() override;

private:
    World& world_;
    Transcript& transcript_;
};

/// The class lookup and the one class that it can find.
class SimulatedRuntime final : public platform::Runtime, private platform::LoaderClass {
public:
    SimulatedRuntime(World& world, Transcript& transcript)
        : world_(world), transcript_(transcript), registrar_(world, transcript) {}

    platform::LoaderClass* classFromString(platform::ClassName name) override;

private:
    QBSPSorterControl* defaultLoader() override;

    World& world_;
    Transcript& transcript_;
    SimulatedRegistrar registrar_;
};

class SimulatedBundles final : public platform::Bundles {
public:
    SimulatedBundles(const World& world, Transcript& transcript) : world_(world), transcript_(transcript) {}

    platform::URL mainBundleURL() const override;
    std::optional<std::string>
    executablePathOfBundleForClassOf(const QBSPSorterControl* registrar) const override;
    std::string localizedStringForKey(platform::TextKey key, platform::FallbackText value,
                                      std::optional<platform::TextTable> table) const override;

private:
    const World& world_;
    Transcript& transcript_;
};

class SimulatedLog final : public platform::Log {
public:
    explicit SimulatedLog(Transcript& transcript) : transcript_(transcript) {}

    void log(std::string_view line) override;

private:
    Transcript& transcript_;
};

class SimulatedPaneBase final : public platform::PreferencePaneBase {
public:
    SimulatedPaneBase(const World& world, Transcript& transcript) : world_(world), transcript_(transcript) {}

    bool initWithBundle() override;

    void mainViewDidLoad() override { record("NSPreferencePane mainViewDidLoad"); }

    void willSelect() override { record("NSPreferencePane willSelect"); }

    void willUnselect() override { record("NSPreferencePane willUnselect"); }

    platform::Window* mainViewWindow() override { return nullptr; }

private:
    void record(std::string_view message);

    const World& world_;
    Transcript& transcript_;
};

} // namespace qbsp::simulated

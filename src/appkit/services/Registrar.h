#pragma once

#include "appkit/services/SorterControlProtocol.h"
#include "platform/Runtime.h"
#include "sorter/QBSPSorterControl.h"

#include <optional>

namespace qbsp::appkit {

/// Adapts the host's registrar, which the host owns.
class RegistrarAdapter final : public QBSPSorterControl {
public:
    explicit RegistrarAdapter(QBSPRegistrar registrar) : registrar_(registrar) {}

    [[nodiscard]] QBSPRegistrar object() const { return registrar_; }

    /// The registrar's class.
    [[nodiscard]] Class objectClass() const { return [registrar_ class]; }

    [[nodiscard]] bool applicationIsRegistered(const std::optional<platform::URL>& application) override;
    [[nodiscard]] bool registerApplication(const std::optional<platform::URL>& application) override;
    [[nodiscard]] bool unregisterApplication(const std::optional<platform::URL>& application) override;
    void showAccountsSystemPreferencePane() override;
    void showSorterApplication() override;
    void closeSorterApplication() override;

private:
    QBSPRegistrar registrar_;
};

/// A class that may respond to `defaultLoader`. Keeps the adapter of the registrar that it last returned.
class AppKitLoaderClass final : public platform::LoaderClass {
public:
    explicit AppKitLoaderClass(Class loader) : loader_(loader) {}

    [[nodiscard]] QBSPSorterControl* defaultLoader() override;

private:
    Class loader_;
    std::optional<RegistrarAdapter> registrar_;
};

/// The classes in this process. Keeps the adapter of the class that was last found.
class AppKitRuntime final : public platform::Runtime {
public:
    [[nodiscard]] platform::LoaderClass* classFromString(platform::ClassName name) override;

private:
    std::optional<AppKitLoaderClass> found_;
};

} // namespace qbsp::appkit

#pragma once

#include "appkit/RegistrarAdapter.h"
#include "platform/Runtime.h"

#include <optional>

namespace qbsp::appkit {

/// A class that answers `defaultLoader`. It keeps the adapter of what was answered last.
class AppKitLoaderClass final : public platform::LoaderClass {
public:
    explicit AppKitLoaderClass(Class loader) : loader_(loader) {}

    [[nodiscard]] QBSPSorterControl* defaultLoader() override;

private:
    Class loader_;
    std::optional<RegistrarAdapter> registrar_;
};

/// The classes in this process. It keeps the adapter of the class that was found last.
class AppKitRuntime final : public platform::Runtime {
public:
    [[nodiscard]] platform::LoaderClass* classFromString(platform::ClassName name) override;

private:
    std::optional<AppKitLoaderClass> found_;
};

} // namespace qbsp::appkit

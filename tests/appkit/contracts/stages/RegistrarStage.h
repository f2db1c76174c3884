#pragma once

#include "platform/Bundles.h"
#include "platform/Runtime.h"
#include "sorter/QBSPSorterControl.h"

#include <memory>
#include <string>
#include <vector>

namespace qbsp::contracts {

/// A host whose classes may hand out a registrar.
class RegistrarStage {
public:
    static std::unique_ptr<RegistrarStage> simulated();
    static std::unique_ptr<RegistrarStage> appKit();

    virtual ~RegistrarStage() = default;

    [[nodiscard]] virtual platform::Runtime& runtime() = 0;
    [[nodiscard]] virtual platform::Bundles& bundles() = 0;

    /// The name of a class that hands out the registrar, of one that has none to hand out, and of no class.
    [[nodiscard]] virtual platform::ClassName loaderWithRegistrar() = 0;
    [[nodiscard]] virtual platform::ClassName loaderWithoutRegistrar() = 0;
    [[nodiscard]] virtual platform::ClassName noLoader() = 0;

    /// The path of the executable of the registrar's bundle.
    [[nodiscard]] virtual std::string registrarExecutable() const = 0;

    /// From now on the registrar adds and removes nothing.
    virtual void letRegistrarRefuse() = 0;

    /// The messages that the registrar got, by selector and the application's path or "null".
    [[nodiscard]] virtual std::vector<std::string> messages() = 0;
};

} // namespace qbsp::contracts

#pragma once

#include "platform/Name.h"

namespace qbsp {
class QBSPSorterControl;
}

namespace qbsp::platform {

/// A class of the host that hands out the registrar.
class LoaderClass {
public:
    virtual ~LoaderClass() = default;

    /// The registrar, which the host owns; null when it offers none.
    [[nodiscard]] virtual QBSPSorterControl* defaultLoader() = 0;
};

/// The classes in the process.
class Runtime {
public:
    virtual ~Runtime() = default;

    /// The class of that name; null when the process has none.
    [[nodiscard]] virtual LoaderClass* classFromString(ClassName name) = 0;
};

} // namespace qbsp::platform

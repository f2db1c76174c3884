#pragma once

#include "Home.h"
#include "Supervision.h"

#include <string>
#include <vector>

namespace faults {

/// What may have become of a save that failed.
enum class Afterwards {
    isSavedWithTheNext, ///< it waits, and the next save carries it
    isRepeated,         ///< it is forgotten, and the user does it again
    isLost,             ///< it was the last of its process
};

/// Something that the user does and that is stored.
struct Save {
    std::string name;
    Contents before; ///< what lies in the home then: values of all kinds that are not the pane's
    Work work;
    Afterwards afterwards = Afterwards::isSavedWithTheNext;
};

/// Each of the pane's and of its adapters' saves, with the real adapters, in both builds.
[[nodiscard]] std::vector<Save> allSaves();

/// Has another process save something in all stores; true when it could do so at once.
[[nodiscard]] bool anotherProcessSaves();

} // namespace faults

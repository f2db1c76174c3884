#pragma once

#include "processes/Process.h"

#include <string>

namespace processes {

/// A running application.
struct Application {
    Process process;
    std::string bundle;     ///< the path of its bundle
    std::string identifier; ///< its bundle identifier

    friend bool operator==(const Application&, const Application&) = default;
};

} // namespace processes

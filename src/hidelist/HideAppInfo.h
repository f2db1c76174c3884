#pragma once

#include "platform/Value.h"

#include <string>

namespace qbsp {

/// One row of the hide list.
struct HideAppInfo {
    std::string appName;     ///< the row's identity, as stored in the Sorter's list
    platform::Value hideApp; ///< true: the Sorter hides while the application is in full-screen mode
};

} // namespace qbsp

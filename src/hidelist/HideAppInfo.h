#pragma once

#include "platform/Value.h"

#include <string_view>

namespace qbsp {

/// One row of the hide list.
struct HideAppInfo {
    std::string_view appName; ///< the row's identity, as stored in the Sorter's list; kept by the HideList
    platform::Value hideApp;  ///< true: the Sorter hides while the application is in full-screen mode
};

} // namespace qbsp

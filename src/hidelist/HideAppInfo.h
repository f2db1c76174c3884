#pragma once

#include "platform/Name.h"
#include "platform/Value.h"

#include <string>

namespace qbsp {

/// The columns of the hide list's table, by their identifiers.
inline constexpr platform::ColumnIdentifier nameColumn{"1"};
inline constexpr platform::ColumnIdentifier flagColumn{"2"};

/// One row of the hide list. The same record stands for the application as long as the list holds it.
struct HideAppInfo {
    std::string appName;     ///< the row's identity, as stored in the Sorter's list
    platform::Value hideApp; ///< true: the Sorter hides while the application is in full-screen mode
};

} // namespace qbsp

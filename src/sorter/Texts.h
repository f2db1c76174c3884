#pragma once

#include "platform/Name.h"

namespace qbsp::texts {

inline constexpr platform::TextKey show{"Show"};
inline constexpr platform::TextKey quit{"Quit"};
inline constexpr platform::TextKey mayLackPermissions{
    "You may not have permissions to change the `Login Items'. Do you want to check this in the System "
    "Preferences > Accounts preferences?"};
inline constexpr platform::TextKey check{"Check"};
inline constexpr platform::TextKey cancel{"Cancel"};

} // namespace qbsp::texts

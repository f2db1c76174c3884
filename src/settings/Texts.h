#pragma once

#include "platform/Name.h"

namespace qbsp::texts {

inline constexpr platform::TextKey couldNotRemoveLoginItem{"Could not remove the login item."};
inline constexpr platform::TextKey couldNotAddLoginItem{"Could not add the login item."};

} // namespace qbsp::texts

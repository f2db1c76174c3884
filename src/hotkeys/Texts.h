#pragma once

#include "platform/Name.h"

namespace qbsp::texts {

inline constexpr platform::TextKey usedForTakeNote{"this combination is used for the `Take Note' hot key"};
inline constexpr platform::TextKey usedForCopySelection{
    "this combination is used for the `Copy Selection' hot key"};

} // namespace qbsp::texts

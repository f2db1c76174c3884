#pragma once

namespace faults {

/// Whether all is tried, which takes minutes, or a part of it, which takes seconds.
extern bool isLong;

} // namespace faults

#pragma once

namespace benchmarks {

/// Microseconds on the clock that this program has waited for a disk, in fsync().
double microsecondsInSyncs();

} // namespace benchmarks

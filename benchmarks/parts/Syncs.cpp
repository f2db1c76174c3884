#include "Syncs.h"

#include <chrono>
#include <sys/syscall.h>
#include <unistd.h>

namespace benchmarks {

static std::chrono::duration<double, std::micro> waited;

double microsecondsInSyncs() {
    return waited.count();
}

} // namespace benchmarks

// Called in place of the C library's, by everything that this program is linked of.
extern "C" int fsync(int descriptor) {
    const auto start = std::chrono::steady_clock::now();
    const long result = syscall(SYS_fsync, descriptor);
    benchmarks::waited += std::chrono::steady_clock::now() - start;
    return static_cast<int>(result);
}

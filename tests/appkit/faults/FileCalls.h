#pragma once

#include <linux/seccomp.h>
#include <string>
#include <sys/types.h>
#include <vector>

namespace faults {

/// The numbers of all system calls that work on files.
[[nodiscard]] std::vector<unsigned> numbersOfFileCalls();

/// A system call on a file, as its process asks for it.
struct FileCall {
    pid_t process = 0;
    std::string name;
    std::string file; ///< its path; empty when the call is on something else
};

[[nodiscard]] FileCall fileCallOf(const seccomp_notif& request);

} // namespace faults

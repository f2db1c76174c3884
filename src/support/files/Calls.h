#pragma once

#include <cerrno>
#include <system_error>

namespace files {

/// Makes the system call again while a signal interrupts it, a hundred times at most: one that is interrupted
/// for ever must not hold the caller for ever.
template <class Call>
auto uninterrupted(Call call) {
    constexpr int tries = 100;
    auto result = call();
    for (int made = 1; made < tries && result < 0 && errno == EINTR; ++made)
        result = call();
    return result;
}

/// What the last system call failed with.
[[nodiscard]] inline std::error_code lastError() {
    return {errno, std::generic_category()};
}

/// Makes the system call as uninterrupted() does. No error when it returned 0; else what it failed with.
template <class Call>
[[nodiscard]] std::error_code attempt(Call call) {
    return uninterrupted(call) == 0 ? std::error_code() : lastError();
}

} // namespace files

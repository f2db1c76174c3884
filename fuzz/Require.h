#pragma once

#include <cstdio>
#include <cstdlib>

namespace qbsp::fuzz {

/// Ends the program with that sentence when it is not so; the fuzzer then keeps the input.
inline void require(bool isSo, const char* sentence) {
    if (isSo)
        return;
    std::fprintf(stderr, "Not so: %s\n", sentence);
    std::abort();
}

} // namespace qbsp::fuzz

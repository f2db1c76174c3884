#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace benchmarks {

/// What the names of a list are like.
enum class Kind {
    ascii,        ///< letters, digits and blanks, of either case
    someNotAscii, ///< a tenth of them as in notAscii
    notAscii,     ///< letters with accents, Greek, Cyrillic, Han, and characters beyond 16 bits
    onePrefix,    ///< all begin with the same hundred characters
    longNames,    ///< ten thousand characters each
    inOrder,      ///< stored in the order in which they are shown
};

/// Its name in the table.
[[nodiscard]] std::string nameOf(Kind kind);

/// So many different names, the same ones each time.
[[nodiscard]] std::vector<std::string> namesOf(Kind kind, std::size_t count);

/// Stores the names as the hide list of the Solo edition's Sorter, every third one ticked. Returns the file.
std::filesystem::path storeList(std::span<const std::string> names);

} // namespace benchmarks

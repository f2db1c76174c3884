#pragma once

#include <string>

namespace qbsp::appkit {

/// Makes way for a dictionary in the file: one that has contents, but is no dictionary's property list, is
/// kept under another name. False when it is still in the way.
[[nodiscard]] bool setAsideUnlessDictionary(const std::string& file);

} // namespace qbsp::appkit

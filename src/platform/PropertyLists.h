#pragma once

#include "platform/URL.h"
#include "platform/Value.h"

#include <optional>
#include <string>

namespace qbsp::platform {

/// Whether a file appears whole or not at all.
enum class Atomically : bool { no = false, yes = true };

/// Dictionaries in property-list files.
class PropertyLists {
public:
    virtual ~PropertyLists() = default;

    /// The dictionary in the file at that path. None when there is no path, no file, or no dictionary in it.
    [[nodiscard]] virtual std::optional<Dictionary>
    dictionaryWithContentsOfFile(const std::optional<std::string>& path) const = 0;

    /// Writes the dictionary as an XML property list. False when nothing was written, as without a URL.
    [[nodiscard]] virtual bool writeToURL(const Dictionary& dictionary, const std::optional<URL>& url,
                                          Atomically atomically) = 0;
};

} // namespace qbsp::platform

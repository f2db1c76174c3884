#pragma once

#include "platform/Name.h"
#include "platform/URL.h"

#include <optional>
#include <string>

namespace qbsp::platform {

/// Whether the folders that lead to a new one are made too.
enum class IntermediateDirectories : bool { mustExist = false, create = true };

/// Files and folders.
class FileManager {
public:
    virtual ~FileManager() = default;

    /// The folder that the members of the application group share; none for a process outside the group.
    [[nodiscard]] virtual std::optional<URL>
    containerURLForSecurityApplicationGroupIdentifier(ApplicationGroup group) = 0;

    /// True when anything, a file or a folder, is at that path.
    [[nodiscard]] virtual bool fileExistsAtPath(const std::string& path) const = 0;

    /// Makes a folder with default attributes. Returns the description of the error that the platform
    /// reports; none when it reports no error.
    [[nodiscard]] virtual std::optional<std::string>
    createDirectoryAtURL(const URL& url, IntermediateDirectories intermediates) = 0;
};

} // namespace qbsp::platform

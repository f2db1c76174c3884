#pragma once

#include "platform/Value.h"

#include <map>
#include <optional>
#include <string>
#include <variant>

namespace qbsp::simulated {

/// The simulated disk: property lists, other files, and folders, by path. A folder is there too while
/// anything lies below it.
class Disk {
public:
    void putPropertyList(const std::string& path, const platform::Dictionary& contents);
    void putFile(const std::string& path);
    void makeFolder(const std::string& path);

    /// Removes what is at the path and below it. A folder above it that was made exists from then on only
    /// while something else lies below it.
    void remove(const std::string& path);

    [[nodiscard]] bool exists(const std::string& path) const;

    /// The property list at the path; none when something else or nothing is there.
    [[nodiscard]] std::optional<platform::Dictionary> propertyList(const std::string& path) const;

    [[nodiscard]] std::map<std::string, platform::Dictionary> propertyLists() const;

private:
    struct OtherFile {};

    struct Folder {};

    using Entry = std::variant<OtherFile, Folder, platform::Dictionary>;

    std::map<std::string, Entry> entries_;
};

} // namespace qbsp::simulated

#pragma once

#include "platform/Value.h"

#include <string>
#include <utility>

namespace qbsp::appkit {

/// The file that holds one preferences domain of the user.
class DomainFile {
public:
    explicit DomainFile(std::string domain) : domain_(std::move(domain)) {}

    /// What the file holds now; empty when there is no file, or nothing that can be read as a dictionary.
    [[nodiscard]] platform::Dictionary contents() const;

    /// Keeps a file that is no property list under another name, where nothing overwrites it. False when one
    /// could not be kept.
    [[nodiscard]] bool setAsideIfUnreadable() const;

    /// Merges the changes into what the file holds; a change to no value removes the key. A file that is no
    /// property list is kept under another name first. False when the changes did not reach the file.
    [[nodiscard]] bool merge(const platform::Dictionary& changes) const;

private:
    [[nodiscard]] std::string path() const;
    [[nodiscard]] bool write(const platform::Dictionary& contents) const;

    std::string domain_;
};

} // namespace qbsp::appkit

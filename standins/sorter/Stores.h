#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace standin {

/// The settings that the Sorter and the host share, read from their files on each call. A host is named by
/// its process.
class Stores {
public:
    /// The stores of the Sorter of that bundle identifier.
    explicit Stores(NSString* identifier) : identifier_(identifier) {}

    /// Reads the host's hot keys and, in the embedded Sorter, the one in the shared folder: "key=value ...".
    [[nodiscard]] std::string hotKeys(NSString* host) const;

    /// Reads whether the host wants the tab hidden: "key=value".
    [[nodiscard]] std::string visibility(NSString* host) const;

    /// True when the tab should be shown.
    [[nodiscard]] bool tabIsVisible(NSString* host) const;

    /// Reads the list of applications in whose full-screen mode the Sorter hides: "key=value". The embedded
    /// Sorter reads the full edition's, or the Solo edition's where that has none.
    [[nodiscard]] std::string hideList() const;

private:
    [[nodiscard]] bool isEmbedded() const;

    NSString* identifier_;
};

} // namespace standin

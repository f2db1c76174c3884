#pragma once

#include "appkit/bridge/Retained.h"

#import <Foundation/Foundation.h>

#include <functional>
#include <optional>

namespace qbsp::appkit {

/// Finds the row whose name begins with what the user types.
class TypeSelection {
public:
    using NameOfRow = std::function<NSString*(NSInteger row)>;

    /// Characters that come less than a second after the last ones continue them. Returns the first row whose
    /// name begins with all of them, whatever the case and the accents; nothing when there is none. The time
    /// is in seconds.
    [[nodiscard]] std::optional<NSInteger> type(NSString* characters, NSTimeInterval time, NSInteger rowCount,
                                                const NameOfRow& nameOfRow);

private:
    Retained<NSString*> typed_;
    NSTimeInterval lastTime_ = 0;
};

} // namespace qbsp::appkit

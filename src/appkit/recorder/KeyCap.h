#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace qbsp::recorder {

/// The letter as it is printed on a key cap: its capital, or the letter itself where the capital would be
/// several letters ("ß"). Returns an empty string for nil.
[[nodiscard]] std::string keyCap(NSString* letter);

} // namespace qbsp::recorder

#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace qbsp::recorder {

/// The letter as keyboards print it: its capital, or the letter itself where that takes several ("ß"). Takes
/// nil for none, which gives an empty text.
[[nodiscard]] std::string keyCap(NSString* letter);

} // namespace qbsp::recorder

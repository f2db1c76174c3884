#pragma once

#import <Foundation/Foundation.h>

#include <functional>

namespace qbsp::appkit {

/// The longest beginning and end of the text that fit with "…" between them; the text itself if it fits.
/// Never cuts a composed character in two. Autoreleased.
[[nodiscard]] NSString* shortenedInTheMiddle(NSString* text, const std::function<bool(NSString*)>& fits);

/// The text without as much of its middle as leaves that many characters, one less or so in composed ones.
[[nodiscard]] NSString* withoutMiddle(NSString* text, NSUInteger length);

} // namespace qbsp::appkit

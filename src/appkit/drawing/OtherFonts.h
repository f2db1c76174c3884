#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

/// A font of that size that has all of the characters; nil when there is none, or when the system itself
/// draws what a font lacks in another.
[[nodiscard]] NSFont* otherFontWithCharacters(NSString* characters, CGFloat size);

} // namespace qbsp::appkit

#pragma once

#import <AppKit/AppKit.h>

#include "appkit/bridge/Retained.h"

#include <map>
#include <string>

namespace qbsp::appkit {

/// The system font in the size that the user has chosen. Every size in the pane follows from it.
[[nodiscard]] NSFont* controlFont();

/// The same, smaller: for remarks.
[[nodiscard]] NSFont* remarkFont();

/// The height of a line of text, in whole points.
[[nodiscard]] CGFloat lineHeight(NSFont* font);

/// The font itself if it has all of the characters; otherwise one of the same size that has them, or nil when
/// there is none.
[[nodiscard]] NSFont* fontWithCharacters(NSString* characters, NSFont* font);

/// The font in which to set a whole text, whose lines may be several: as above, but the font itself when
/// there is no other.
[[nodiscard]] NSFont* fontForText(NSString* text, NSFont* font);

/// Sets texts of any script, and remembers which fonts it found.
class FontSubstitution {
public:
    /// The text with these attributes, each character in their font if that has it, and otherwise in one that
    /// has it, as far as there is one. Autoreleased.
    [[nodiscard]] NSAttributedString* text(NSString* characters, NSDictionary* attributes);

private:
    [[nodiscard]] NSFont* fontFor(NSString* character, NSFont* font);

    std::map<std::string, Retained<NSFont*>> substitutes_;
};

} // namespace qbsp::appkit

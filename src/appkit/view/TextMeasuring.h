#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

/// The size that the field's text needs when it is wrapped to at most that width.
[[nodiscard]] NSSize sizeOfWrappedText(NSTextField* field, CGFloat width);

/// The width that the longest word of the field's text needs.
[[nodiscard]] CGFloat widthOfWidestWord(NSTextField* field);

} // namespace qbsp::appkit

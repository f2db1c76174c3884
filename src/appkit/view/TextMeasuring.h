#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

/// The size that the field's text needs when it is wrapped to at most that width.
[[nodiscard]] NSSize sizeOfWrappedText(NSTextField* field, CGFloat width);

/// The height of that many lines of the field's text.
[[nodiscard]] CGFloat heightOfLines(NSTextField* field, NSUInteger count);

} // namespace qbsp::appkit

#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

/// The room that the field's text needs when it is wrapped to at most that width.
[[nodiscard]] NSSize sizeOfWrappedText(NSTextField* field, CGFloat width);

} // namespace qbsp::appkit

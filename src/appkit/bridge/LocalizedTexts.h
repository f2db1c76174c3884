#pragma once

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

/// The text in the user's language, from the string table of the bundle that this code was loaded from; the
/// text itself when the table does not have it.
[[nodiscard]] NSString* localized(NSString* text);

} // namespace qbsp::appkit

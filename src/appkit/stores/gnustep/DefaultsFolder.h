#pragma once

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

/// The folder of the files that hold the user's defaults.
[[nodiscard]] NSString* defaultsFolder();

/// The folder in it for the lock of these files, made when it is missing. Nil when it cannot be made or
/// written to: no file there can be written, and who waits for the lock waits in vain.
[[nodiscard]] NSString* lockFolder();

} // namespace qbsp::appkit

#pragma once

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

/// Sets the value in the standard user defaults of this process; nil removes the key.
void setStandardDefault(id value, NSString* key);

/// Flushes the standard user defaults of this process. False when what was set by the function above did not
/// reach their file; it stays set then, and the next flush carries it.
[[nodiscard]] bool flushStandardDefaults();

} // namespace qbsp::appkit

#pragma once

#include "platform/Value.h"

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

/// The dictionary as an XML property list, autoreleased.
[[nodiscard]] NSData* xmlData(const platform::Dictionary& dictionary);

} // namespace qbsp::appkit

#pragma once

#import <Foundation/Foundation.h>

namespace defaults {

/// The domain that holds what this process sets in its standard user defaults. The first call makes these.
[[nodiscard]] NSString* ownDomain();

} // namespace defaults

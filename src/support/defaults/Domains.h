#pragma once

#import <Foundation/Foundation.h>

namespace defaults {

/// The domain that holds what this process sets in its standard user defaults. The first call makes these.
[[nodiscard]] NSString* ownDomain();

/// The domain of an application with that process name and that bundle identifier. This process must have an
/// identifier.
[[nodiscard]] NSString* domainOfApplication(NSString* process, NSString* identifier);

} // namespace defaults

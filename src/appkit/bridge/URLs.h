#pragma once

#include "platform/URL.h"

#import <Foundation/Foundation.h>

#include <optional>

namespace qbsp::appkit {

/// The file URL, autoreleased.
[[nodiscard]] NSURL* nsURL(const platform::URL& url);

/// The file URL, or nil for none.
[[nodiscard]] NSURL* nsURL(const std::optional<platform::URL>& url);

/// The URL by its path; none for nil and for a URL without a path.
[[nodiscard]] std::optional<platform::URL> urlFromNSURL(NSURL* url);

} // namespace qbsp::appkit

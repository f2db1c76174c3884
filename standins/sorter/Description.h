#pragma once

#import <Foundation/Foundation.h>
#include <string>

namespace standin {

/// A property list on one line: YES and NO, numbers, quoted strings, {"key"=value; ...} in the order of the
/// keys, (value, ...); "none" for nil.
[[nodiscard]] std::string description(id value);

} // namespace standin

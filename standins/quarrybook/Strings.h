#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace quarrybook {

[[nodiscard]] inline NSString* string(const std::string& text) {
    return [NSString stringWithUTF8String:text.c_str()];
}

} // namespace quarrybook

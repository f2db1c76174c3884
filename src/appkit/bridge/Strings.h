#pragma once

#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

namespace qbsp::appkit {

/// The text in UTF-8, line feeds and zeros included; empty for nil.
[[nodiscard]] std::string utf8(NSString* text);

/// The text, or none for nil.
[[nodiscard]] std::optional<std::string> optionalUTF8(NSString* text);

/// The text as an autoreleased string, never nil: bytes that are not valid UTF-8 are read as Latin-1.
[[nodiscard]] NSString* nsString(std::string_view text);

} // namespace qbsp::appkit

#pragma once

#import <AppKit/AppKit.h>
#include <string>

namespace quarrybook {

/// Writes what the window shows as a PNG file. False when that failed.
[[nodiscard]] bool writePicture(NSWindow* window, const std::string& path);

} // namespace quarrybook

#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::recorder {

/// A recorder's current appearance.
struct RecorderLook {
    NSRect bounds;
    NSString* text;
    bool isListening;
    bool isEmpty;
    bool isClearPressed;
};

/// Where the clear button lies within those bounds.
[[nodiscard]] NSRect clearButtonRect(NSRect bounds);

/// Draws into the current graphics context.
void drawRecorder(const RecorderLook& look);

} // namespace qbsp::recorder

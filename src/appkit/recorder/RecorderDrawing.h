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

/// True when a font on this system has the symbols of all four modifiers.
[[nodiscard]] bool canDrawSymbols();

/// Draws into the current graphics context.
void drawRecorder(const RecorderLook& look);

} // namespace qbsp::recorder

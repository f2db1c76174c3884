#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::recorder {

/// What a recorder looks like at the moment.
struct RecorderLook {
    NSRect bounds;
    NSString* text;
    bool isListening;
    bool hasFocus;
    bool isEmpty;
    bool isClearPressed;
};

/// Where the clear button lies within those bounds.
[[nodiscard]] NSRect clearButtonRect(NSRect bounds);

/// True when a font on this system has the symbols of all four modifiers.
[[nodiscard]] bool canDrawSymbols();

/// Draws into the view that has the focus for drawing.
void drawRecorder(const RecorderLook& look);

} // namespace qbsp::recorder

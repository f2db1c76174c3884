#include "appkit/recorder/RecorderDrawing.h"

#include <algorithm>
#include <array>

namespace qbsp::recorder {

namespace {

constexpr CGFloat fontSize = 13;
constexpr CGFloat ringWidth = 2;
constexpr CGFloat cornerRadius = 5;
constexpr CGFloat clearButtonSize = 14;
constexpr CGFloat clearButtonMargin = 7;

bool hasModifierSymbols(NSFont* font) {
    constexpr std::array<unichar, 4> symbols{0x2318, 0x2325, 0x2303, 0x21E7};
    NSCharacterSet* covered = [font coveredCharacterSet];
    return std::ranges::all_of(
        symbols, [covered](unichar symbol) { return static_cast<bool>([covered characterIsMember:symbol]); });
}

/// The system font where it has the symbols, as on the Mac; otherwise a font that does, or nil when there is
/// none.
NSFont* symbolFont() {
    NSFont* system = [NSFont systemFontOfSize:fontSize];
    if (hasModifierSymbols(system))
        return system;
    NSFont* other = [NSFont fontWithName:@"DejaVu Sans" size:fontSize];
    return hasModifierSymbols(other) ? other : nil;
}

NSFont* textFont() {
    NSFont* font = symbolFont();
    return font != nil ? font : [NSFont systemFontOfSize:fontSize];
}

NSColor* accentColor() {
    return [NSColor colorWithCalibratedRed:0.22 green:0.48 blue:0.87 alpha:1];
}

NSBezierPath* roundedRect(NSRect rect) {
    return [NSBezierPath bezierPathWithRoundedRect:rect xRadius:cornerRadius yRadius:cornerRadius];
}

void drawBezel(const RecorderLook& look) {
    NSBezierPath* bezel = roundedRect(NSInsetRect(look.bounds, ringWidth + 0.5, ringWidth + 0.5));
    NSColor* listening = [NSColor colorWithCalibratedRed:0.88 green:0.93 blue:1 alpha:1];
    [look.isListening ? listening : [NSColor textBackgroundColor] set];
    [bezel fill];
    [look.isListening ? accentColor() : [NSColor grayColor] set];
    [bezel setLineWidth:1];
    [bezel stroke];
}

void drawFocusRing(NSRect bounds) {
    NSBezierPath* ring = roundedRect(NSInsetRect(bounds, ringWidth / 2, ringWidth / 2));
    [ring setLineWidth:ringWidth];
    [[accentColor() colorWithAlphaComponent:0.6] set];
    [ring stroke];
}

NSDictionary* textAttributes(const RecorderLook& look) {
    NSMutableParagraphStyle* centred = [[[NSParagraphStyle defaultParagraphStyle] mutableCopy] autorelease];
    [centred setAlignment:NSCenterTextAlignment];
    [centred setLineBreakMode:NSLineBreakByTruncatingTail];
    NSColor* color = look.isListening ? accentColor() : [NSColor textColor];
    if (look.isEmpty && !look.isListening)
        color = [NSColor disabledControlTextColor];
    return [NSDictionary dictionaryWithObjectsAndKeys:textFont(), NSFontAttributeName, color,
                                                      NSForegroundColorAttributeName, centred,
                                                      NSParagraphStyleAttributeName, nil];
}

/// Leaves room for the clear button on both sides, so that the text stays in the middle.
NSRect textRect(NSRect bounds, CGFloat height) {
    const CGFloat margin = clearButtonSize + clearButtonMargin + 2;
    NSRect rect = NSInsetRect(bounds, margin, 0);
    rect.origin.y += std::max<CGFloat>((NSHeight(bounds) - height) / 2, 0);
    rect.size.height = height;
    return rect;
}

void drawText(const RecorderLook& look) {
    NSDictionary* attributes = textAttributes(look);
    const CGFloat height = [look.text sizeWithAttributes:attributes].height;
    [look.text drawInRect:textRect(look.bounds, height) withAttributes:attributes];
}

void drawClearButton(const RecorderLook& look) {
    const NSRect rect = clearButtonRect(look.bounds);
    [look.isClearPressed ? [NSColor darkGrayColor] : [NSColor grayColor] set];
    [[NSBezierPath bezierPathWithOvalInRect:rect] fill];

    const NSRect cross = NSInsetRect(rect, clearButtonSize * 0.32, clearButtonSize * 0.32);
    NSBezierPath* strokes = [NSBezierPath bezierPath];
    [strokes moveToPoint:NSMakePoint(NSMinX(cross), NSMinY(cross))];
    [strokes lineToPoint:NSMakePoint(NSMaxX(cross), NSMaxY(cross))];
    [strokes moveToPoint:NSMakePoint(NSMinX(cross), NSMaxY(cross))];
    [strokes lineToPoint:NSMakePoint(NSMaxX(cross), NSMinY(cross))];
    [strokes setLineWidth:1.5];
    [[NSColor whiteColor] set];
    [strokes stroke];
}

} // namespace

NSRect clearButtonRect(NSRect bounds) {
    return NSMakeRect(NSMaxX(bounds) - clearButtonMargin - clearButtonSize,
                      NSMidY(bounds) - clearButtonSize / 2, clearButtonSize, clearButtonSize);
}

bool canDrawSymbols() {
    return symbolFont() != nil;
}

void drawRecorder(const RecorderLook& look) {
    drawBezel(look);
    if (look.hasFocus)
        drawFocusRing(look.bounds);
    drawText(look);
    if (!look.isEmpty)
        drawClearButton(look);
}

} // namespace qbsp::recorder

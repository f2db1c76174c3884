#include "appkit/recorder/RecorderDrawing.h"

#include "appkit/drawing/Fonts.h"

#include <algorithm>

namespace qbsp::recorder {

namespace {

constexpr CGFloat cornerRadius = 5;
constexpr CGFloat clearButtonShare = CGFloat{14} / 26;
constexpr CGFloat clearButtonMargin = 7;

NSBezierPath* roundedRect(NSRect rect) {
    return [NSBezierPath bezierPathWithRoundedRect:rect xRadius:cornerRadius yRadius:cornerRadius];
}

void drawBezel(const RecorderLook& look) {
    const CGFloat lineWidth = look.isListening ? 2 : 1;
    NSBezierPath* bezel = roundedRect(NSInsetRect(look.bounds, lineWidth / 2, lineWidth / 2));
    [[NSColor textBackgroundColor] set];
    [bezel fill];
    [look.isListening ? [NSColor keyboardFocusIndicatorColor] : [NSColor controlShadowColor] set];
    [bezel setLineWidth:lineWidth];
    [bezel stroke];
}

NSDictionary* textAttributes(const RecorderLook& look) {
    NSMutableParagraphStyle* centred = [[[NSParagraphStyle defaultParagraphStyle] mutableCopy] autorelease];
    [centred setAlignment:NSCenterTextAlignment];
    [centred setLineBreakMode:NSLineBreakByTruncatingTail];
    const bool isPrompt = look.isEmpty && !look.isListening;
    NSFont* font = appkit::fontForText(look.text, appkit::controlFont());
    NSColor* color = isPrompt ? [NSColor disabledControlTextColor] : [NSColor textColor];
    return [NSDictionary dictionaryWithObjectsAndKeys:font, NSFontAttributeName, color,
                                                      NSForegroundColorAttributeName, centred,
                                                      NSParagraphStyleAttributeName, nil];
}

/// Leaves room for the clear button on both sides, so that the text stays in the middle.
NSRect textRect(NSRect bounds, CGFloat height) {
    const CGFloat margin = NSWidth(clearButtonRect(bounds)) + clearButtonMargin + 2;
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
    [look.isClearPressed ? [NSColor textColor] : [NSColor controlShadowColor] set];
    [[NSBezierPath bezierPathWithOvalInRect:rect] fill];

    const CGFloat inset = NSWidth(rect) * 8 / 25;
    const NSRect cross = NSInsetRect(rect, inset, inset);
    NSBezierPath* strokes = [NSBezierPath bezierPath];
    [strokes moveToPoint:NSMakePoint(NSMinX(cross), NSMinY(cross))];
    [strokes lineToPoint:NSMakePoint(NSMaxX(cross), NSMaxY(cross))];
    [strokes moveToPoint:NSMakePoint(NSMinX(cross), NSMaxY(cross))];
    [strokes lineToPoint:NSMakePoint(NSMaxX(cross), NSMinY(cross))];
    [strokes setLineWidth:NSWidth(rect) / 9];
    [[NSColor textBackgroundColor] set];
    [strokes stroke];
}

} // namespace

NSRect clearButtonRect(NSRect bounds) {
    const CGFloat size = NSHeight(bounds) * clearButtonShare;
    return NSMakeRect(NSMaxX(bounds) - clearButtonMargin - size, NSMidY(bounds) - size / 2, size, size);
}

void drawRecorder(const RecorderLook& look) {
    drawBezel(look);
    drawText(look);
    if (!look.isEmpty)
        drawClearButton(look);
}

} // namespace qbsp::recorder

#import "appkit/drawing/WarningSign.h"

namespace qbsp::appkit {

namespace {

/// Places in a rectangle, by the percentages of its width from the left and of its height from the top.
class Grid {
public:
    Grid(NSRect rect, bool isFlipped) : rect_(rect), isFlipped_(isFlipped) {}

    [[nodiscard]] NSPoint point(CGFloat across, CGFloat down) const {
        const CGFloat y = NSHeight(rect_) * down / 100;
        return NSMakePoint(NSMinX(rect_) + NSWidth(rect_) * across / 100,
                           isFlipped_ ? NSMinY(rect_) + y : NSMaxY(rect_) - y);
    }

private:
    NSRect rect_;
    bool isFlipped_;
};

NSBezierPath* triangle(const Grid& grid) {
    NSBezierPath* path = [NSBezierPath bezierPath];
    [path moveToPoint:grid.point(50, 6)];
    [path lineToPoint:grid.point(96, 92)];
    [path lineToPoint:grid.point(4, 92)];
    [path closePath];
    [path setLineJoinStyle:NSRoundLineJoinStyle];
    return path;
}

void drawExclamationMark(const Grid& grid, CGFloat width) {
    NSBezierPath* path = [NSBezierPath bezierPath];
    [path moveToPoint:grid.point(50, 36)];
    [path lineToPoint:grid.point(50, 62)];
    [path moveToPoint:grid.point(50, 72)];
    [path lineToPoint:grid.point(50, 82)];
    [path setLineWidth:width];
    [path stroke];
}

} // namespace

void drawWarningSign(NSRect rect, bool isFlipped) {
    const Grid grid(rect, isFlipped);
    const CGFloat line = NSHeight(rect) / 10;
    NSBezierPath* shape = triangle(grid);
    [shape setLineWidth:line];
    // The usual amber of warnings, in light and dark: the ink on it is black in both.
    [[NSColor colorWithCalibratedRed:1 green:0.78F blue:0.2F alpha:1] set];
    [shape fill];
    [[NSColor blackColor] set];
    [shape stroke];
    drawExclamationMark(grid, line * 13 / 10);
}

} // namespace qbsp::appkit

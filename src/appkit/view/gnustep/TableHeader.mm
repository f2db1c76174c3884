#import "appkit/view/TableHeader.h"

#include "appkit/bridge/Retained.h"

static void drawGround(NSRect rect) {
    [[NSColor headerColor] set];
    NSRectFill(rect);
    [[NSColor controlShadowColor] set];
    NSFrameRect(NSMakeRect(NSMinX(rect), NSMaxY(rect) - 1, NSWidth(rect), 1));
}

/// The header of a column.
@interface QBSPHeaderCell : NSTableHeaderCell
@end

@implementation QBSPHeaderCell

- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view {
    drawGround(frame);
    NSFrameRect(NSMakeRect(NSMaxX(frame) - 1, NSMinY(frame), 1, NSHeight(frame)));
    [self drawInteriorWithFrame:[self drawingRectForBounds:frame] inView:view];
}

@end

/// What is beside the columns' headers, above the scroller.
@interface QBSPHeaderCorner : NSView
@end

@implementation QBSPHeaderCorner

- (BOOL)isFlipped {
    return YES;
}

- (void)drawRect:(NSRect)rect {
    drawGround([self bounds]);
}

@end

namespace qbsp::appkit {

namespace {

void setUpHeaderOf(NSTableColumn* column) {
    const auto cell = Retained<QBSPHeaderCell*>::adopt([[QBSPHeaderCell alloc] initTextCell:@""]);
    [cell.get() setDrawsBackground:NO];
    [cell.get() setTextColor:[NSColor headerTextColor]];
    [cell.get() setFont:[[column headerCell] font]];
    [cell.get() setAlignment:[static_cast<NSCell*>([column headerCell]) alignment]];
    [column setHeaderCell:cell.get()];
}

} // namespace

void setUpHeader(NSTableView* table) {
    NSArray* columns = [table tableColumns];
    for (NSUInteger index = 0; index < [columns count]; ++index)
        setUpHeaderOf([columns objectAtIndex:index]);
    const auto corner = Retained<QBSPHeaderCorner*>::adopt(
        [[QBSPHeaderCorner alloc] initWithFrame:[[table cornerView] frame]]);
    [table setCornerView:corner.get()];
}

} // namespace qbsp::appkit

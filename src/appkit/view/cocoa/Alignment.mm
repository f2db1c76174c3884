#import "appkit/view/Alignment.h"

namespace qbsp::appkit {

NSRect visiblePart(NSView* control) {
    return [control alignmentRectForFrame:[control frame]];
}

void setVisiblePart(NSView* control, NSRect rect) {
    [control setFrame:[control frameForAlignmentRect:rect]];
}

} // namespace qbsp::appkit

#include <gtest/gtest.h>

#import "appkit/view/QBSPPaneView.h"
#import "appkit/view/TextMeasuring.h"

namespace qbsp::appkit {

namespace {

constexpr CGFloat narrowest = 520;

QBSPPaneView* narrowView() {
    QBSPPaneView* view = [[[QBSPPaneView alloc] initWithFrame:NSZeroRect] autorelease];
    [[view controls].takeNoteLabel setStringValue:@"Take Note Hotkey:"];
    [[view controls].copySelectionLabel setStringValue:@"Copy Selection Hotkey:"];
    [view setFrameSize:NSMakeSize(narrowest, 560)];
    [view contentsDidChange];
    return view;
}

} // namespace

TEST(PaneView, HasRoomForTheLongestReasonBeforeItIsShown) {
    NSTextField* field = [[narrowView() controls].noteHotKeyRecorder reasonField];

    [field
        setStringValue:@"Shift alone is not enough: hold Control, Option (Alt) or Command (Super) as well."];

    const NSRect frame = [field frame];
    EXPECT_GE(NSHeight(frame), sizeOfWrappedText(field, NSWidth(frame)).height);
}

} // namespace qbsp::appkit

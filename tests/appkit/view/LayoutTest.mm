#include "LaidOutPane.h"

#include "appkit/drawing/Fonts.h"
#import "appkit/view/Alignment.h"
#include "appkit/view/ControlFlow.h"
#import "appkit/view/TextMeasuring.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace qbsp::appkit {

namespace {

NSString* const longestReason = @"Shift alone is not enough: hold Ctrl, Alt or Super as well.";

constexpr CGFloat fontSizes[] = {9, 12, 15, 18, 21, 24};

bool isDark(NSBitmapImageRep* bitmap, NSInteger column, NSInteger row) {
    return [[[bitmap colorAtX:column
                            y:row] colorUsingColorSpaceName:NSCalibratedRGBColorSpace] redComponent] < 0.2;
}

class Layout : public LaidOutPane {
protected:
    /// The lowest row of the view's pixels, from its top, that has the text's colour in the columns from that
    /// one on.
    [[nodiscard]] NSInteger lowestInk(NSView* inkedView, NSInteger firstColumn) {
        NSBitmapImageRep* const bitmap = [NSBitmapImageRep imageRepWithData:drawnAnew(inkedView)];
        for (NSInteger row = [bitmap pixelsHigh] - 1; row >= 0; --row)
            for (NSInteger column = firstColumn; column < [bitmap pixelsWide]; ++column)
                if (isDark(bitmap, column, row))
                    return row;
        return -1;
    }

    /// Where its text's baseline lies in the form.
    [[nodiscard]] CGFloat baseline(NSView* control, NSInteger firstColumn = 0) {
        return NSMinY([control frame]) + static_cast<CGFloat>(lowestInk(control, firstColumn));
    }
};

} // namespace

TEST_F(Layout, HasRoomForTheWholeReasonWhileThereIsOne) {
    NSTextField* const field = [controls().clipHotKeyRecorder reasonField];
    const NSRect before = visiblePart(list());
    const NSRect recorder = visiblePart(controls().clipHotKeyRecorder);

    [field setStringValue:longestReason];

    const NSRect shorter = visiblePart(list());
    EXPECT_GE(NSHeight([field frame]), sizeOfWrappedText(field, NSWidth([field frame])).height);
    EXPECT_TRUE(NSEqualRects(recorder, visiblePart(controls().clipHotKeyRecorder)));
    EXPECT_EQ(NSMaxY(shorter), NSMaxY(before));
    EXPECT_LT(NSHeight(shorter), NSHeight(before));

    [field setStringValue:@""];

    EXPECT_TRUE(NSEqualRects(before, visiblePart(list())));
}

TEST_F(Layout, ShowsTheReasonBelowTheRecorderThatItIsAbout) {
    for (QBSPRecorderView* const recorder : {controls().noteHotKeyRecorder, controls().clipHotKeyRecorder}) {
        NSTextField* const field = [recorder reasonField];
        [field setStringValue:longestReason];

        const NSRect frame = visiblePart(recorder);
        EXPECT_EQ(NSMinX([field frame]), NSMinX(frame));
        EXPECT_EQ(NSMinY([field frame]), NSMaxY(frame) + 4);
        expectNothingCutOrCovered();
        [field setStringValue:@""];
    }
}

TEST_F(Layout, MarksTheReasonWithASignThatIsNotOnlyAColor) {
    QBSPReasonField* const field = static_cast<QBSPReasonField*>([controls().noteHotKeyRecorder reasonField]);
    [field setStringValue:@"."];

    const auto line = static_cast<NSInteger>(NSHeight([field bounds]));
    NSBitmapImageRep* const bitmap = [NSBitmapImageRep imageRepWithData:shown(field)];
    int inkInTop = 0;
    int inkInBottom = 0;
    for (NSInteger row = 0; row < line; ++row)
        for (NSInteger column = 0; column < static_cast<NSInteger>([field signWidth]); ++column)
            (row < line / 2 ? inkInTop : inkInBottom) += isDark(bitmap, column, row);
    EXPECT_GT(inkInTop, 10);
    EXPECT_GT(inkInBottom, inkInTop) << "a triangle should be wider at its foot";
}

TEST_F(Layout, HasOneLeftEdgeAndMarginsOfTwentyPoints) {
    for (const CGFloat size : fontSizes) {
        setFontSize(size);
        const CGFloat left = NSMinX(visiblePart(controls().showAtLoginCheckbox));
        const NSView* const all[] = {controls().toggleLaunchButton,
                                     controls().visibilityButton,
                                     controls().noteHotKeyRecorder,
                                     controls().clipHotKeyRecorder,
                                     list(),
                                     [view addButton]};

        for (const NSView* const control : all)
            EXPECT_EQ(NSMinX(visiblePart(const_cast<NSView*>(control))), left) << size;
        EXPECT_EQ(NSMinX([controls().descriptionLabel frame]), 20) << size;
        EXPECT_EQ(NSMinY([controls().descriptionLabel frame]), 20) << size;
        EXPECT_EQ(NSMaxX(visiblePart(list())), NSWidth([form() bounds]) - 20) << size;
        EXPECT_EQ(NSMaxY(visiblePart([view lastControl])), NSHeight([form() bounds]) - 20) << size;
    }
}

TEST_F(Layout, GivesLabelsAndTheirControlsOneBaseline) {
    for (const CGFloat size : {CGFloat{9}, CGFloat{12}, CGFloat{15}, CGFloat{18}}) {
        setFontSize(size);
        for (NSTextField* const label : {controls().visibilityLabel, controls().availabilityLabel})
            [label setStringValue:@"HHHHHHHH"];
        for (NSButton* const button : {controls().visibilityButton, controls().showAtLoginCheckbox})
            [button setTitle:@"HHHH"];
        [view contentsDidChange];
        const auto behindTheBox = static_cast<NSInteger>(size * 1.6) + 4;

        EXPECT_EQ(baseline(controls().visibilityLabel), baseline(controls().visibilityButton, behindTheBox))
            << size;
        EXPECT_EQ(baseline(controls().availabilityLabel),
                  baseline(controls().showAtLoginCheckbox, behindTheBox))
            << size;
    }
}

TEST_F(Layout, GivesTheListsHeaderTheSystemsColorOfHeaders) {
    NSBitmapImageRep* const bitmap =
        [NSBitmapImageRep imageRepWithData:shown([controls().hideAppsTable headerView])];
    NSColor* const expected = [[NSColor headerColor] colorUsingColorSpaceName:NSCalibratedRGBColorSpace];
    ASSERT_GT(std::abs([expected redComponent] -
                       [[[NSColor controlShadowColor] colorUsingColorSpaceName:NSCalibratedRGBColorSpace]
                           redComponent]),
              0.1);

    EXPECT_NEAR([[[bitmap colorAtX:1 y:1] colorUsingColorSpaceName:NSCalibratedRGBColorSpace] redComponent],
                [expected redComponent], 0.01);
}

TEST_F(Layout, HasNoCursorThatOffersToResizeTheListsColumns) {
    EXPECT_FALSE([controls().hideAppsTable allowsColumnResizing]);
}

TEST_F(Layout, FollowsTheSizeOfType) {
    CGFloat lastRow = 0;
    CGFloat lastRecorder = 0;
    for (const CGFloat size : fontSizes) {
        setFontSize(size);

        const CGFloat line = lineHeight([controls().visibilityLabel font]);
        EXPECT_GT([controls().hideAppsTable rowHeight], std::max(line, lastRow));
        EXPECT_GT(NSHeight([controls().noteHotKeyRecorder frame]), std::max(line, lastRecorder));
        EXPECT_GE(NSHeight([[controls().hideAppsTable headerView] frame]), line);
        lastRow = [controls().hideAppsTable rowHeight];
        lastRecorder = NSHeight([controls().noteHotKeyRecorder frame]);
    }
}

TEST_F(Layout, CutsNothingAndCoversNothingAtAnySizeOfTypeAndWindow) {
    for (const CGFloat size : fontSizes)
        for (const NSSize room : {NSMakeSize(480, 356), NSMakeSize(595, 480), NSMakeSize(900, 800)}) {
            SCOPED_TRACE(std::to_string(size) + " points in " + std::to_string(room.width));
            setFontSize(size);
            [view setFrameSize:room];

            expectNothingCutOrCovered();
        }
}

TEST_F(Layout, ScrollsWhereTheHostIsTooSmallAndOnlyThere) {
    NSScrollView* const scrollView = [form() enclosingScrollView];
    EXPECT_TRUE(NSEqualSizes([form() frame].size, [view bounds].size));
    EXPECT_TRUE(NSEqualSizes([scrollView documentVisibleRect].size, [view bounds].size));

    [view setFrameSize:NSMakeSize(480, 356)];

    EXPECT_GT(NSHeight([form() frame]), NSHeight([scrollView documentVisibleRect]));
    EXPECT_EQ(NSWidth([form() frame]), NSWidth([scrollView documentVisibleRect]));
}

TEST_F(Layout, ScrollsToTheControlThatGetsTheFocus) {
    [view setFrameSize:NSMakeSize(480, 356)];
    focus([view firstControl]);

    focus([view lastControl]);

    EXPECT_TRUE(
        NSContainsRect([[form() enclosingScrollView] documentVisibleRect], visiblePart([view lastControl])));
}

TEST_F(Layout, StopsRecordingAtAClickBesideTheControls) {
    QBSPRecorderView* const recorder = controls().noteHotKeyRecorder;
    const NSPoint middle = NSMakePoint(NSMidX([recorder bounds]), NSMidY([recorder bounds]));
    clickAt(recorder, middle, [recorder] { return [recorder isListening]; });
    ASSERT_TRUE([recorder isListening]);

    clickAt(form(), NSMakePoint(5, 5), [recorder] { return ![recorder isListening]; });

    EXPECT_FALSE([recorder isListening]);
    EXPECT_EQ(focused(), recorder);
}

TEST_F(Layout, TogglesAFlagByAClickOnItsBoxOnly) {
    QBSPHideTable* const table = controls().hideAppsTable;
    const NSRect cell = [table frameOfCellAtColumn:1 row:2];

    clickAt(table, NSMakePoint(NSMinX(cell) + 3, NSMidY(cell)), [&] { return [table selectedRow] == 2; });
    EXPECT_EQ([table selectedRow], 2);
    EXPECT_FALSE(flag(2));

    clickAt(table, NSMakePoint(NSMidX(cell), NSMidY(cell)), [&] { return flag(2); });
    EXPECT_TRUE(flag(2));
    NSData* const pixels = shown(view);
    EXPECT_TRUE([pixels isEqual:drawnAnew(view)]);
}

} // namespace qbsp::appkit

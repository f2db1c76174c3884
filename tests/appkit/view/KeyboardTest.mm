#include "PaneWindow.h"

#import "appkit/view/QBSPFormView.h"

#include <algorithm>
#include <vector>

namespace qbsp::appkit {

namespace {

NSString* downArrow() {
    return [NSString stringWithFormat:@"%C", static_cast<unichar>(NSDownArrowFunctionKey)];
}

} // namespace

class Keyboard : public PaneWindow {
protected:
    void press(NSString* characters) { PaneWindow::press(characters); }

    void tick(NSInteger row) { [controls().hideAppsTable toggleFlagOfRow:row]; }

    void select(NSInteger row) {
        [controls().hideAppsTable selectRowIndexes:[NSIndexSet indexSetWithIndex:static_cast<NSUInteger>(row)]
                              byExtendingSelection:NO];
    }

    [[nodiscard]] NSInteger selectedRow() const { return [controls().hideAppsTable selectedRow]; }
};

TEST_F(Keyboard, GoesThroughEveryControlFromTopToBottomAndThenLeavesThePane) {
    NSButton* const outside = [[[NSButton alloc] initWithFrame:NSMakeRect(0, 0, 60, 20)] autorelease];
    [[window contentView] addSubview:outside];
    [[view lastControl] setNextKeyView:outside];
    [outside setNextKeyView:[view firstControl]];
    focus([view firstControl]);
    const std::vector<NSView*> order{controls().toggleLaunchButton,
                                     controls().visibilityButton,
                                     controls().noteHotKeyRecorder,
                                     controls().clipHotKeyRecorder,
                                     controls().hideAppsTable,
                                     [view addButton],
                                     controls().resetFullscreenSettingsButton,
                                     outside,
                                     controls().showAtLoginCheckbox};

    for (NSView* const next : order) {
        pressTab();
        EXPECT_EQ(focused(), next) << [[next description] UTF8String];
    }
    [outside removeFromSuperview];
}

TEST_F(Keyboard, ReachesThePaneAndLeavesItInAHostThatConnectsNothing) {
    NSButton* const outside = [[[NSButton alloc] initWithFrame:NSMakeRect(0, 0, 60, 20)] autorelease];
    [[window contentView] addSubview:outside];

    [view takeFocus];

    EXPECT_EQ(focused(), [view firstControl]);
    focus([view lastControl]);
    pressTab();
    EXPECT_EQ(focused(), outside);
    pressTab();
    EXPECT_EQ(focused(), [view firstControl]);
    [outside removeFromSuperview];
}

TEST_F(Keyboard, IsNotTakenFromAControlOfThePaneThatHasIt) {
    focus([view addButton]);

    [view takeFocus];

    EXPECT_EQ(focused(), [view addButton]);
}

TEST_F(Keyboard, TicksTheSelectedRowBySpaceAndShowsIt) {
    focus(controls().hideAppsTable);
    select(1);

    for (const bool ticked : {true, false, true}) {
        press(@" ");

        EXPECT_EQ(flag(1), ticked);
        NSData* const pixels = shown(view);
        EXPECT_TRUE([pixels isEqual:drawnAnew(view)]);
    }
    EXPECT_EQ(selectedRow(), 1);
}

TEST_F(Keyboard, SelectsTheFirstRowWhenTheListIsReachedWithoutASelection) {
    focus(controls().hideAppsTable);

    EXPECT_EQ(selectedRow(), 0);
}

TEST_F(Keyboard, MovesTheSelectionByArrows) {
    focus(controls().hideAppsTable);

    press(downArrow());

    EXPECT_EQ(selectedRow(), 1);
}

TEST_F(Keyboard, SelectsTheRowWhoseNameBeginsWithWhatIsTyped) {
    focus(controls().hideAppsTable);

    press(@"m");
    EXPECT_EQ(selectedRow(), 3);

    press(@"a");
    EXPECT_EQ(selectedRow(), 3);

    press(@"p");
    EXPECT_EQ(selectedRow(), 4);
}

TEST_F(Keyboard, DoesNothingWithSpaceInAnEmptyList) {
    setNames({});
    focus(controls().hideAppsTable);

    press(@" ");

    EXPECT_EQ(selectedRow(), -1);
}

TEST_F(Keyboard, KeepsTheSelectedApplicationSelectedWhenTheListIsLoadedAgain) {
    select(3);

    setNames({"Mail", "Maps"});

    EXPECT_EQ(selectedRow(), 0);
}

TEST_F(Keyboard, SelectsNoOtherApplicationWhenTheSelectedOneIsGone) {
    select(3);

    setNames({"Atlas", "Books", "Calendar", "Notes"});

    EXPECT_EQ(selectedRow(), -1);
}

TEST_F(Keyboard, HasItsFocusShownByOneRingAroundEachControl) {
    auto* const form = static_cast<QBSPFormView*>([[view firstControl] superview]);
    const std::vector<NSView*> all{controls().showAtLoginCheckbox, controls().toggleLaunchButton,
                                   controls().noteHotKeyRecorder, controls().hideAppsTable, [view addButton]};
    for (NSView* const control : all) {
        focus(control);
        NSView* const scrollView = [control enclosingScrollView];
        NSView* const framed = control == controls().hideAppsTable ? scrollView : control;

        EXPECT_TRUE(NSContainsRect(NSInsetRect([framed frame], -1, -1), [form focusedRect]))
            << [[control description] UTF8String];
        NSData* const pixels = shown(form);
        EXPECT_TRUE([pixels isEqual:drawnAnew(form)]);
        focus(nil);
        EXPECT_FALSE([pixels isEqual:shown(form)]) << [[control description] UTF8String];
    }
}

} // namespace qbsp::appkit

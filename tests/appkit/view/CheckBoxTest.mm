#include "PaneWindow.h"

namespace qbsp::appkit {

namespace {

NSPoint onItsBox(NSView* checkBox) {
    return NSMakePoint(8, NSMidY([checkBox bounds]));
}

} // namespace

using CheckBox = PaneWindow;

TEST_F(CheckBox, ShowsItsNewStateAfterEverySpace) {
    NSButton* const checkBox = controls().visibilityButton;
    focus(checkBox);

    for (int times = 1; times <= 3; ++times) {
        const NSInteger before = [checkBox state];
        press(@" ");

        EXPECT_NE([checkBox state], before);
        NSData* const pixels = shown(view);
        EXPECT_TRUE([pixels isEqual:drawnAnew(view)]) << "after " << times << " times";
    }
}

TEST_F(CheckBox, ShowsItsNewStateAfterEveryClick) {
    NSButton* const checkBox = controls().showAtLoginCheckbox;

    for (int times = 1; times <= 3; ++times) {
        const NSInteger before = [checkBox state];
        clickAt(checkBox, onItsBox(checkBox), [&] { return [checkBox state] != before; });

        EXPECT_NE([checkBox state], before);
        NSData* const pixels = shown(view);
        EXPECT_TRUE([pixels isEqual:drawnAnew(view)]) << "after " << times << " times";
    }
}

TEST_F(CheckBox, LooksDifferentWhenItIsTicked) {
    NSButton* const checkBox = controls().visibilityButton;
    NSData* const before = shown(checkBox);

    [checkBox setState:NSOnState];

    EXPECT_FALSE([before isEqual:shown(checkBox)]);
}

} // namespace qbsp::appkit

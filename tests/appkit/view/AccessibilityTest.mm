#include "PaneWindow.h"

#import "appkit/view/QBSPListCell.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace {

using Announcements = std::vector<std::pair<id, std::string>>;

Announcements& announcements() {
    static Announcements all;
    return all;
}

} // namespace

/// Takes the place of the system's function, so that tests see what is announced.
void NSAccessibilityPostNotification(id element, NSString* notification) {
    announcements().emplace_back(element, [notification UTF8String]);
}

namespace qbsp::appkit {

namespace {

std::string text(id string) {
    return string == nil ? "" : [string UTF8String];
}

NSEvent* pressOfKeyC() {
    return [NSEvent keyEventWithType:NSKeyDown
                            location:NSZeroPoint
                       modifierFlags:0
                           timestamp:0
                        windowNumber:0
                             context:nil
                          characters:@"c"
         charactersIgnoringModifiers:@"c"
                           isARepeat:NO
                             keyCode:54];
}

std::string valueChanged() {
    return text(NSAccessibilityValueChangedNotification);
}

} // namespace

class Accessibility : public PaneWindow {
protected:
    void SetUp() override {
        PaneWindow::SetUp();
        announcements().clear();
    }

    [[nodiscard]] QBSPListCell* cell(NSInteger column, NSInteger row) const {
        return [controls().hideAppsTable accessibilityCellForColumn:column row:row];
    }

    [[nodiscard]] static bool announced(id element) {
        return std::ranges::count(announcements(), std::pair{element, valueChanged()}) > 0;
    }
};

TEST_F(Accessibility, NamesEachButtonWithTheLabelBesideIt) {
    EXPECT_EQ(text([controls().showAtLoginCheckbox accessibilityLabel]),
              "Availability: Start Sorter at login");
    EXPECT_EQ(text([controls().visibilityButton accessibilityLabel]), "Visibility: Full");
    EXPECT_EQ(text([controls().toggleLaunchButton accessibilityLabel]), "Show");
    EXPECT_EQ(text([[view addButton] accessibilityLabel]), "Add...");
}

TEST_F(Accessibility, NamesTheRecordersAndTheListByTheirLabels) {
    EXPECT_EQ(text([controls().noteHotKeyRecorder accessibilityLabel]), "Take Note Hotkey:");
    EXPECT_EQ(text([controls().clipHotKeyRecorder accessibilityLabel]), "Copy Selection Hotkey:");
    EXPECT_EQ(text([controls().hideAppsTable accessibilityLabel]), "Hide Sorter in Full Screen:");
}

TEST_F(Accessibility, HasTheRoleOfEachControl) {
    EXPECT_EQ(text([controls().visibilityButton accessibilityRole]), text(NSAccessibilityCheckBoxRole));
    EXPECT_EQ(text([controls().toggleLaunchButton accessibilityRole]), text(NSAccessibilityButtonRole));
    EXPECT_EQ(text([controls().hideAppsTable accessibilityRole]), text(NSAccessibilityTableRole));
    EXPECT_EQ(text([cell(0, 0) accessibilityRole]), text(NSAccessibilityStaticTextRole));
    EXPECT_EQ(text([cell(1, 0) accessibilityRole]), text(NSAccessibilityCheckBoxRole));
}

TEST_F(Accessibility, HelpsWithEachControlAsItsToolTipDoes) {
    for (QBSPButton* const button :
         {controls().showAtLoginCheckbox, controls().visibilityButton, controls().toggleLaunchButton,
          controls().resetFullscreenSettingsButton, [view addButton]}) {
        EXPECT_NE(text([button accessibilityHelp]), "") << text([button title]);
        EXPECT_EQ(text([button accessibilityHelp]), text([button toolTip]));
    }
    for (QBSPRecorderView* const recorder : {controls().noteHotKeyRecorder, controls().clipHotKeyRecorder}) {
        EXPECT_NE(text([recorder accessibilityHelp]), "");
        EXPECT_EQ(text([recorder accessibilityHelp]), text([recorder toolTip]));
    }
    EXPECT_NE(text([controls().hideAppsTable accessibilityHelp]), "");
    EXPECT_EQ(text([cell(1, 2) accessibilityHelp]), text([controls().hideAppsTable accessibilityHelp]));
}

TEST_F(Accessibility, TellsTheValueOfACheckBoxAndAnnouncesItsChange) {
    QBSPButton* const checkBox = controls().visibilityButton;
    EXPECT_EQ([[checkBox accessibilityValue] intValue], 0);

    EXPECT_TRUE([checkBox accessibilityPerformPress]);

    EXPECT_EQ([[checkBox accessibilityValue] intValue], 1);
    EXPECT_TRUE(announced(checkBox));
}

TEST_F(Accessibility, AnnouncesTheNewTitleOfTheButton) {
    [controls().toggleLaunchButton setTitle:@"Quit"];

    EXPECT_EQ(announcements(), (Announcements{{controls().toggleLaunchButton,
                                               text(NSAccessibilityTitleChangedNotification)}}));
}

TEST_F(Accessibility, NamesEachCheckBoxOfTheListByItsApplication) {
    EXPECT_EQ(text([cell(1, 3) accessibilityLabel]), "Mail, Hide");
    EXPECT_EQ([[cell(1, 3) accessibilityValue] intValue], 0);
    EXPECT_EQ(text([cell(0, 3) accessibilityLabel]), "Application");
    EXPECT_EQ(text([cell(0, 3) accessibilityValue]), "Mail");
}

TEST_F(Accessibility, KnowsHowManyCellsTheListHas) {
    EXPECT_EQ([controls().hideAppsTable accessibilityRowCount], 5);
    EXPECT_EQ([controls().hideAppsTable accessibilityColumnCount], 2);
    EXPECT_EQ(cell(1, 5), nil);
    EXPECT_EQ(cell(2, 0), nil);
}

TEST_F(Accessibility, TicksACheckBoxOfTheListAndAnnouncesItsChange) {
    EXPECT_TRUE([cell(1, 2) accessibilityPerformPress]);

    EXPECT_TRUE(flag(2));
    EXPECT_EQ([[cell(1, 2) accessibilityValue] intValue], 1);
    ASSERT_EQ(announcements().size(), 1U);
    EXPECT_EQ(announcements().front().second, valueChanged());
}

TEST_F(Accessibility, PressesNoName) {
    EXPECT_FALSE([cell(0, 2) accessibilityPerformPress]);

    EXPECT_FALSE(flag(2));
}

TEST_F(Accessibility, AnnouncesWhyARecorderRefusedAKey) {
    QBSPRecorderView* const recorder = controls().noteHotKeyRecorder;
    auto* const field = static_cast<QBSPReasonField*>([recorder reasonField]);
    focus(recorder);
    [recorder accessibilityPerformPress];
    announcements().clear();

    [recorder keyDown:pressOfKeyC()];

    EXPECT_TRUE(announced(recorder));
    EXPECT_TRUE(announced(field));
    EXPECT_EQ(text([field accessibilityRole]), text(NSAccessibilityStaticTextRole));
    EXPECT_NE(text([field accessibilityValue]), "");
    EXPECT_EQ(text([recorder accessibilityHelp]), text([field accessibilityValue]));
}

TEST_F(Accessibility, AnnouncesWhatARecorderHasRecorded) {
    QBSPRecorderView* const recorder = controls().noteHotKeyRecorder;
    [recorder setKeyCode:0 flags:NSCommandKeyMask];
    announcements().clear();

    EXPECT_TRUE([recorder accessibilityPerformDelete]);

    EXPECT_TRUE(announced(recorder));
}

} // namespace qbsp::appkit

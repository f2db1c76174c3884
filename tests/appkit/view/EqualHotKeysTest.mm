#include "PaneWindow.h"

#include <string>

/// Refuses what the other recorder has.
@interface PaneRecorderDelegate : NSObject <QBSPRecorderViewDelegate> {
@public
    QBSPRecorderView* other;
}
@end

@implementation PaneRecorderDelegate

- (BOOL)recorderView:(QBSPRecorderView*)recorder
           isKeyCode:(NSInteger)code
       andFlagsTaken:(NSUInteger)flags
              reason:(NSString**)reason {
    *reason = @"used for the other";
    return code == [other keyCode] && flags == [other flags];
}

- (void)recorderView:(QBSPRecorderView*)recorder keyComboDidChange:(NSInteger)code flags:(NSUInteger)flags {
}

@end

namespace qbsp::appkit {

namespace {

/// A pane whose two hot keys were stored by another program, which made them equal.
class EqualHotKeys : public PaneWindow {
protected:
    void SetUp() override {
        PaneWindow::SetUp();
        note = connect(controls().noteHotKeyRecorder, controls().clipHotKeyRecorder);
        clip = connect(controls().clipHotKeyRecorder, controls().noteHotKeyRecorder);
        for (QBSPRecorderView* recorder : {controls().noteHotKeyRecorder, controls().clipHotKeyRecorder})
            [recorder setKeyCode:8 flags:NSControlKeyMask];
        [view contentsDidChange];
    }

    void TearDown() override {
        for (QBSPRecorderView* recorder : {controls().noteHotKeyRecorder, controls().clipHotKeyRecorder})
            [recorder setDelegate:nil];
        PaneWindow::TearDown();
    }

    [[nodiscard]] static std::string reasonAt(QBSPRecorderView* recorder) {
        return [[[recorder reasonField] stringValue] UTF8String];
    }

private:
    static Retained<PaneRecorderDelegate*> connect(QBSPRecorderView* recorder, QBSPRecorderView* other) {
        auto delegate = Retained<PaneRecorderDelegate*>::adopt([[PaneRecorderDelegate alloc] init]);
        delegate.get()->other = other;
        [recorder setDelegate:delegate.get()];
        return delegate;
    }

    Retained<PaneRecorderDelegate*> note;
    Retained<PaneRecorderDelegate*> clip;
};

} // namespace

TEST_F(EqualHotKeys, AreSaidToBeSoAtBothRecordersWhenThePaneOpens) {
    EXPECT_EQ(reasonAt(controls().noteHotKeyRecorder), "Used for the other.");
    EXPECT_EQ(reasonAt(controls().clipHotKeyRecorder), "Used for the other.");
}

TEST_F(EqualHotKeys, AreSaidToBeSoAtNeitherOnceOneChanges) {
    [controls().noteHotKeyRecorder accessibilityPerformDelete];

    EXPECT_EQ(reasonAt(controls().noteHotKeyRecorder), "");
    EXPECT_EQ(reasonAt(controls().clipHotKeyRecorder), "");
}

TEST_F(EqualHotKeys, TakeNoRoomUnderARecorderThatIsHidden) {
    [controls().noteHotKeyRecorder setKeyCode:8 flags:NSControlKeyMask];
    [controls().clipHotKeyRecorder setKeyCode:8 flags:NSControlKeyMask];
    [controls().clipHotKeyRecorder setHidden:YES];

    [view contentsDidChange];

    EXPECT_EQ(reasonAt(controls().clipHotKeyRecorder), "");
    EXPECT_NE(reasonAt(controls().noteHotKeyRecorder), "");
}

} // namespace qbsp::appkit

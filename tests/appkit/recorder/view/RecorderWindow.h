#pragma once

#include "appkit/recorder/VirtualKeys.h"

#import "appkit/recorder/QBSPRecorderView.h"

#include <optional>
#include <string>
#include <vector>

namespace qbsp::recorder {

/// The calls that a delegate received, and the combination that it says is taken.
struct DelegateCalls {
    std::vector<KeyCombo> offered;
    std::vector<KeyCombo> reported;
    std::optional<KeyCombo> taken;
};

} // namespace qbsp::recorder

/// Remembers the calls that it receives.
@interface RecordingDelegate : NSObject <QBSPRecorderViewDelegate> {
@private
    qbsp::recorder::DelegateCalls* _calls;
}
- (id)initWithCalls:(qbsp::recorder::DelegateCalls*)calls;
@end

/// A window with two recorders, a text field, two fields for reasons and a button that Return presses. It
/// counts the events that it has handled.
@interface RecorderWindow : NSWindow {
@public
    QBSPRecorderView* first;
    QBSPRecorderView* second;
    NSTextField* textField;
    NSTextField* reasonField;
    NSTextField* secondReasonField;
    int keyUps;
    int keyDowns;
    int mouseDowns;
    int mouseUps;
    int actions;
}
- (id)initAtOrigin:(NSPoint)origin;

/// Puts fresh views into it.
- (void)fill;

/// Takes them out again.
- (void)empty;

/// What the button and menu items do.
- (void)act:(id)sender;
@end

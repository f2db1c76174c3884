#include "appkit/controls/RecorderControl.h"

#include "appkit/bridge/Strings.h"

using qbsp::platform::KeyCombo;
using qbsp::platform::RecorderControl;
using qbsp::platform::RecorderDelegate;

/// Forwards the view's delegate messages to the recorder's delegate.
@interface QBSPRecorderListener : NSObject <QBSPRecorderViewDelegate> {
    RecorderControl* recorder;
    RecorderDelegate* delegate;
}
- (id)initWithRecorder:(RecorderControl*)aRecorder delegate:(RecorderDelegate*)aDelegate;
@end

@implementation QBSPRecorderListener

- (id)initWithRecorder:(RecorderControl*)aRecorder delegate:(RecorderDelegate*)aDelegate {
    if ((self = [super init]) != nil) {
        recorder = aRecorder;
        delegate = aDelegate;
    }
    return self;
}

#pragma mark - QBSPRecorderViewDelegate

- (BOOL)recorderView:(QBSPRecorderView*)view
           isKeyCode:(NSInteger)code
       andFlagsTaken:(NSUInteger)cocoaFlags
              reason:(NSString**)reason {
    std::optional<std::string> text;
    std::optional<std::string>* wanted = reason == NULL ? nullptr : &text;
    const bool taken =
        delegate->shortcutRecorderIsKeyCodeAndFlagsTakenReason(*recorder, code, cocoaFlags, wanted);
    if (text)
        *reason = qbsp::appkit::nsString(*text);
    return taken;
}

- (void)recorderView:(QBSPRecorderView*)view keyComboDidChange:(NSInteger)code flags:(NSUInteger)cocoaFlags {
    delegate->shortcutRecorderKeyComboDidChange(*recorder, KeyCombo{.flags = cocoaFlags, .code = code});
}

@end

namespace qbsp::appkit {

AppKitRecorderControl::AppKitRecorderControl(QBSPRecorderView* view) : view_(view) {}

AppKitRecorderControl::~AppKitRecorderControl() {
    [view_.get() setDelegate:nil];
}

void AppKitRecorderControl::setHidden(bool hidden) {
    [view_.get() setHidden:hidden ? YES : NO];
}

void AppKitRecorderControl::setKeyCombo(const KeyCombo& keyCombo) {
    // No key's code needs more than NSInteger has, also where that has 32 bits.
    [view_.get() setKeyCode:static_cast<NSInteger>(keyCombo.code)
                      flags:static_cast<NSUInteger>(keyCombo.flags)];
}

void AppKitRecorderControl::setDelegate(RecorderDelegate& delegate) {
    QBSPRecorderListener* listener = [[QBSPRecorderListener alloc] initWithRecorder:this delegate:&delegate];
    listener_ = Retained<QBSPRecorderListener*>::adopt(listener);
    [view_.get() setDelegate:listener];
}

} // namespace qbsp::appkit

#include "appkit/bridge/Retained.h"
#include "appkit/recorder/KeyCap.h"
#include "appkit/recorder/Keyboard.h"
#include "appkit/recorder/gnustep/EventModifiers.h"
#import "appkit/recorder/gnustep/QBSPLayoutReceiver.h"
#include "appkit/recorder/gnustep/X11Layout.h"
#include "appkit/recorder/gnustep/X11LayoutWatch.h"
#include "appkit/recorder/gnustep/X11Repetition.h"

#import <GNUstepGUI/GSDisplayServer.h>

namespace qbsp::recorder {

namespace {

/// The application's own connection to the X server; null where GNUstep does not use one.
void* xDisplay() {
    GSDisplayServer* server = GSCurrentServer();
    return [server isKindOfClass:NSClassFromString(@"XGServer")] ? [server serverDevice] : nullptr;
}

class GnustepKeyboard : public Keyboard {
public:
    explicit GnustepKeyboard(LayoutListener& listener);

    ~GnustepKeyboard() override { [receiver_.get() invalidate]; }

    GnustepKeyboard(const GnustepKeyboard&) = delete;
    GnustepKeyboard& operator=(const GnustepKeyboard&) = delete;

    std::optional<KeyPress> press(NSEvent* event) override;
    void observe(NSEvent* event) override;
    CocoaFlags heldModifiers(NSEvent* event) const override;
    void forgetHeldKeys() override;
    std::string label(VirtualKey key) override;

private:
    void keyUp(X11KeyCode keyCode);

    X11LayoutWatch watch_{xDisplay()};
    X11Layout layout_{watch_.display()};
    appkit::Retained<QBSPLayoutReceiver*> receiver_;
    EventModifiers modifiers_;
    X11KeyCode downKey_ = 0;
};

GnustepKeyboard::GnustepKeyboard(LayoutListener& listener)
    : receiver_(appkit::Retained<QBSPLayoutReceiver*>::adopt(
          [[QBSPLayoutReceiver alloc] initWithWatch:watch_ listener:listener])) {
    omitReleasesOfHeldKeys(xDisplay());
}

std::optional<KeyPress> GnustepKeyboard::press(NSEvent* event) {
    const X11KeyCode keyCode = [event keyCode];
    if (layout_.isModifierKey(keyCode)) {
        observe(event);
        return std::nullopt;
    }
    // GNUstep's isARepeat is NO for repetitions too, so they are recognized by the missing key-up.
    const bool isRepeat = keyCode == downKey_;
    downKey_ = keyCode;
    return KeyPress{.key = virtualKeyOfX11(keyCode),
                    .flags = modifiers_.held([event modifierFlags]),
                    .isRepeat = isRepeat};
}

void GnustepKeyboard::observe(NSEvent* event) {
    const CocoaFlags modifier = layout_.modifier([event keyCode]);
    if ([event type] == NSFlagsChanged)
        modifiers_.flagsChanged(modifier, [event modifierFlags]);
    else if ([event type] == NSKeyDown)
        modifiers_.keyDown(modifier);
    else if ([event type] == NSKeyUp)
        keyUp([event keyCode]);
}

CocoaFlags GnustepKeyboard::heldModifiers(NSEvent* event) const {
    return modifiers_.held([event modifierFlags]);
}

void GnustepKeyboard::keyUp(X11KeyCode keyCode) {
    modifiers_.keyUp(layout_.modifier(keyCode));
    if (keyCode == downKey_)
        downKey_ = 0;
}

void GnustepKeyboard::forgetHeldKeys() {
    modifiers_.forgetHeldKeys();
    downKey_ = 0;
}

std::string GnustepKeyboard::label(VirtualKey key) {
    const std::string text = layout_.text(x11KeyOfVirtual(key));
    return keyCap([NSString stringWithUTF8String:text.c_str()]);
}

} // namespace

std::unique_ptr<Keyboard> makeKeyboard(LayoutListener& listener) {
    return std::make_unique<GnustepKeyboard>(listener);
}

} // namespace qbsp::recorder

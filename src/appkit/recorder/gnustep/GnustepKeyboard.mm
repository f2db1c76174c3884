#include "appkit/recorder/KeyCap.h"
#include "appkit/recorder/Keyboard.h"
#include "appkit/recorder/gnustep/EventModifiers.h"
#include "appkit/recorder/gnustep/X11Layout.h"
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
    GnustepKeyboard() { omitReleasesOfHeldKeys(xDisplay()); }

    std::optional<KeyPress> press(NSEvent* event) override;
    void observe(NSEvent* event) override;
    void forgetHeldKeys() override;
    std::string label(VirtualKey key) override;

private:
    void keyUp(X11KeyCode keyCode);

    X11Layout layout_{xDisplay()};
    EventModifiers modifiers_;
    X11KeyCode downKey_ = 0;
};

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

std::unique_ptr<Keyboard> makeKeyboard() {
    return std::make_unique<GnustepKeyboard>();
}

} // namespace qbsp::recorder

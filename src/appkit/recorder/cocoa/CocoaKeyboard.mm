#include "appkit/bridge/Retained.h"
#include "appkit/recorder/KeyCap.h"
#include "appkit/recorder/Keyboard.h"
#import "appkit/recorder/cocoa/QBSPLayoutReceiver.h"

#import <Carbon/Carbon.h>

#include <array>

namespace qbsp::recorder {

namespace {

/// Cocoa's events already have the Mac's codes and flags, and modifier keys never arrive as key-down events.
class CocoaKeyboard : public Keyboard {
public:
    explicit CocoaKeyboard(LayoutListener& listener);

    ~CocoaKeyboard() override { [receiver_.get() invalidate]; }

    CocoaKeyboard(const CocoaKeyboard&) = delete;
    CocoaKeyboard& operator=(const CocoaKeyboard&) = delete;

    std::optional<KeyPress> press(NSEvent* event) override;

    void observe(NSEvent*) override {}

    CocoaFlags heldModifiers(NSEvent* event) const override { return [event modifierFlags] & modifiers::all; }

    void forgetHeldKeys() override {}

    std::string label(VirtualKey key) override;

private:
    appkit::Retained<QBSPLayoutReceiver*> receiver_;
};

CocoaKeyboard::CocoaKeyboard(LayoutListener& listener)
    : receiver_(appkit::Retained<QBSPLayoutReceiver*>::adopt(
          [[QBSPLayoutReceiver alloc] initWithListener:listener])) {}

/// Nil where the layout prints nothing on the key.
NSString* letterOnKey(const UCKeyboardLayout* layout, UInt16 key) {
    UInt32 deadKeyState = 0;
    UniCharCount length = 0;
    std::array<UniChar, 4> letter{};
    const OSStatus status =
        UCKeyTranslate(layout, key, kUCKeyActionDisplay, 0, LMGetKbdType(), kUCKeyTranslateNoDeadKeysMask,
                       &deadKeyState, letter.size(), &length, letter.data());
    const bool printable = status == noErr && length > 0 && letter.front() > ' ';
    return printable ? [NSString stringWithCharacters:letter.data() length:length] : nil;
}

std::optional<KeyPress> CocoaKeyboard::press(NSEvent* event) {
    return KeyPress{.key = [event keyCode],
                    .flags = [event modifierFlags],
                    .isRepeat = static_cast<bool>([event isARepeat])};
}

std::string CocoaKeyboard::label(VirtualKey key) {
    TISInputSourceRef source = TISCopyCurrentKeyboardLayoutInputSource();
    const auto data =
        static_cast<CFDataRef>(TISGetInputSourceProperty(source, kTISPropertyUnicodeKeyLayoutData));
    std::string result;
    if (data != nullptr)
        result = keyCap(letterOnKey(reinterpret_cast<const UCKeyboardLayout*>(CFDataGetBytePtr(data)),
                                    static_cast<UInt16>(key)));
    CFRelease(source);
    return result;
}

} // namespace

std::unique_ptr<Keyboard> makeKeyboard(LayoutListener& listener) {
    return std::make_unique<CocoaKeyboard>(listener);
}

} // namespace qbsp::recorder

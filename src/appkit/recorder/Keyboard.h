#pragma once

#include "appkit/recorder/RecorderLogic.h"

#import <AppKit/AppKit.h>
#include <memory>
#include <optional>
#include <string>

namespace qbsp::recorder {

/// Is notified when the keyboard has another layout, so that its labels may be others.
class LayoutListener {
public:
    virtual ~LayoutListener() = default;

    virtual void layoutChanged() = 0;
};

/// The system's keyboard in the Mac's terms.
class Keyboard {
public:
    virtual ~Keyboard() = default;

    /// The key that the key-down event is for; none for a modifier key.
    [[nodiscard]] virtual std::optional<KeyPress> press(NSEvent* event) = 0;

    /// Must be called with every key-down, key-up and flags-changed event that is not passed to press().
    virtual void observe(NSEvent* event) = 0;

    /// The modifiers that are held at the event, which was passed to press() or observe() before.
    [[nodiscard]] virtual CocoaFlags heldModifiers(NSEvent* event) const = 0;

    /// Forgets which keys are held down. Must be called when keys may have been released without an event.
    virtual void forgetHeldKeys() = 0;

    /// What the current layout prints on the key; empty where it prints nothing.
    [[nodiscard]] virtual std::string label(VirtualKey key) = 0;
};

/// The keyboard of the system that this is built for. The listener must outlive it.
[[nodiscard]] std::unique_ptr<Keyboard> makeKeyboard(LayoutListener& listener);

} // namespace qbsp::recorder

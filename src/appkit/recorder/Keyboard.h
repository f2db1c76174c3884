#pragma once

#include "appkit/recorder/RecorderLogic.h"

#import <AppKit/AppKit.h>
#include <memory>
#include <optional>
#include <string>

namespace qbsp::recorder {

/// The system's keyboard in the Mac's terms.
class Keyboard {
public:
    virtual ~Keyboard() = default;

    /// The key that the key-down event is about; nothing for a key that only modifies others.
    [[nodiscard]] virtual std::optional<KeyPress> press(NSEvent* event) = 0;

    /// To be called with every key-down, key-up and flags-changed event that is not asked about with press().
    virtual void observe(NSEvent* event) = 0;

    /// Keys may have been released unseen: nothing that was observed counts as held any more.
    virtual void forgetHeldKeys() = 0;

    /// What the present layout prints on the key; empty where it prints nothing.
    [[nodiscard]] virtual std::string label(VirtualKey key) = 0;
};

/// The keyboard of the system that this is built for.
[[nodiscard]] std::unique_ptr<Keyboard> makeKeyboard();

} // namespace qbsp::recorder

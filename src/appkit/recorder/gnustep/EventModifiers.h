#pragma once

#include "appkit/recorder/VirtualKeys.h"

#include <array>

namespace qbsp::recorder {

/// Works out from GNUstep's events which modifier keys are actually held.
///
/// GNUstep lets users choose which key sets which modifier flag. By default, Alt sets the Command flag, right
/// Alt sets Option, Super sets Help, and right Super sets none at all. So each flag stands for the key that
/// last set it; and a modifier key without a flag, which arrives like any other key, counts as held while it
/// is down.
class EventModifiers {
public:
    /// A modifier key was pressed or released, and the event's flags are now those.
    void flagsChanged(CocoaFlags modifier, CocoaFlags eventFlags);

    /// A modifier key arrived as a key-down event.
    void keyDown(CocoaFlags modifier) { heldKeys_ |= modifier; }

    void keyUp(CocoaFlags modifier) { heldKeys_ &= ~modifier; }

    /// No key counts as held until the next event reports it. What the flags stand for is kept.
    void forgetHeldKeys();

    /// The modifiers held at an event with those flags.
    [[nodiscard]] CocoaFlags held(CocoaFlags eventFlags) const;

private:
    struct Meaning {
        CocoaFlags eventBit;
        CocoaFlags modifier;
    };

    std::array<Meaning, 5> meanings_{
        Meaning{modifiers::shift, modifiers::shift}, Meaning{modifiers::control, modifiers::control},
        Meaning{modifiers::command, modifiers::option}, Meaning{modifiers::option, modifiers::option},
        Meaning{helpBit, modifiers::command}};
    CocoaFlags lastEventFlags_ = 0;
    CocoaFlags heldKeys_ = 0;

    static constexpr CocoaFlags helpBit = 0x400000;
};

} // namespace qbsp::recorder

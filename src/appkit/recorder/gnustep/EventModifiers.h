#pragma once

#include "appkit/recorder/VirtualKeys.h"

#include <array>

namespace qbsp::recorder {

/// Tells which modifier keys are really held from what GNUstep's events say.
///
/// GNUstep lets a user choose which key sets which modifier bit, and out of the box Alt sets Command's, the
/// right Alt Option's, Super Help's, and the right Super none at all. So a bit stands for the key that last
/// switched it on; and a modifier key without a bit, which arrives like any other key, counts while it is
/// down.
class EventModifiers {
public:
    /// A modifier key was pressed or released, and the bits are now those.
    void flagsChanged(CocoaFlags modifier, CocoaFlags eventFlags);

    /// A modifier key arrived as a key that went down.
    void keyDown(CocoaFlags modifier) { heldKeys_ |= modifier; }

    void keyUp(CocoaFlags modifier) { heldKeys_ &= ~modifier; }

    /// Nothing counts as held any more but what the next event says; what the bits stand for is kept.
    void forgetHeldKeys();

    /// The modifiers held at an event with those bits.
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
